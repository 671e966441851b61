#pragma once

#include <QColor>
#include <QCoreApplication>
#include <optional>
#include <vexel/base/SbColor.h>

/** Colours as #rrggbb and on the screen, where components end at 0 and 1. */
class ColorText {
    Q_DECLARE_TR_FUNCTIONS(ColorText)
public:
    static QColor onScreen(const SbColor& color);
    static SbColor of(const QColor& color);
    /** "#rrggbb" in small letters. */
    static QString of(const SbColor& color);
    /** The colour of six hexadecimal digits, with or without "#". When it is none, `problem` receives why. */
    static std::optional<SbColor> parse(const QString& text, QString& problem);
};
