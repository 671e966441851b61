#include <vexel/nodes/SoStateFont.h>

#include <QFont>

#include <vexel/nodes/SoFontStyle.h>
#include <vexel/state/SoState.h>

QFont soStateFont(const SoState& state)
{
    QFont font;
    if (state->fontFamily >= 0) {
        static constexpr QFont::StyleHint Hints[] = {QFont::Serif, QFont::SansSerif, QFont::TypeWriter};
        static const char* const Names[] = {"Serif", "Sans Serif", "Monospace"};
        const int family = state->fontFamily <= SoFontStyle::TYPEWRITER ? state->fontFamily : 0;
        font.setFamily(QLatin1String(Names[family]));
        font.setStyleHint(Hints[family]);
        font.setBold((state->fontStyle & SoFontStyle::BOLD) != 0);
        font.setItalic((state->fontStyle & SoFontStyle::ITALIC) != 0);
    } else {
        const QString name = state->fontName.toQString();
        const QString family = name.section(QLatin1Char(':'), 0, 0);
        const QString style = name.section(QLatin1Char(':'), 1);
        if (family != QLatin1String("defaultFont"))
            font.setFamily(family);
        font.setBold(style.contains(QLatin1String("Bold"), Qt::CaseInsensitive));
        font.setItalic(style.contains(QLatin1String("Italic"), Qt::CaseInsensitive) ||
                       style.contains(QLatin1String("Oblique"), Qt::CaseInsensitive));
    }
    return font;
}
