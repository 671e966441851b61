#pragma once

#include <QByteArray>
#include <QString>

/** Texts for formats that know the letters of ASCII only. */
namespace PlainText {

/** Letters lose their accents; other characters, control characters too, become question marks. */
QByteArray ascii(const QString& text);

/** Height of capital letters for one millimetre of font size; about that of most fonts. */
constexpr double Capital_height = 0.72;

} // namespace PlainText
