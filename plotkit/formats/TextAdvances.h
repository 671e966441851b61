#pragma once

#include <plotkit/picture/PictureSink.h>

#include <vector>

/**
 * How far each letter of a text (each UTF-16 unit) goes on, in millimetres, from the metrics of its font. They add up
 * to the width that the text tells. Without a QGuiApplication there are no metrics: then all letters are equally wide,
 * and where the text tells no width either, 0.55 of the size.
 */
std::vector<double> textAdvances(const PageText& text);
