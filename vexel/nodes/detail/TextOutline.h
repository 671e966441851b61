#pragma once

#include <QPainterPath>
#include <vector>

class SbString;
class SoMFString;
class SoState;

/**
 * The outlines of lines of text in the font in force, in units of the font's size, each line from 0 to the right on its
 * base line at y = 0, with y up. Fonts need a QGuiApplication (on any platform, "offscreen" too): without one, texts
 * have no outlines, which is reported once.
 */
class TextOutline {
public:
    struct Line {
        QPainterPath path;
        /** How far the next text would begin. */
        float width = 0;
    };

    TextOutline(const SoState& state, const SoMFString& strings);

    const std::vector<Line>& lines() const { return m_lines; }

private:
    std::vector<Line> m_lines;
};
