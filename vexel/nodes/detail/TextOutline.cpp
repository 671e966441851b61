#include <vexel/nodes/detail/TextOutline.h>

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTransform>

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/nodes/SoFontStyle.h>
#include <vexel/state/SoState.h>

namespace {

// Outlines are taken at this size, where hinting does not bend them, and scaled.
constexpr int OutlineSize = 256;

bool canUseFonts()
{
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return true;
    static const bool isReported = [] {
        SoDebugError::postWarning("SoText", "fonts need a QGuiApplication, and there is none; texts are left out. A "
                                            "program without a display can make one with the platform \"offscreen\"");
        return true;
    }();
    return !isReported;
}

QFont fontOf(const SoState& state)
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
    font.setPixelSize(OutlineSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

TextOutline::TextOutline(const SoState& state, const SoMFString& strings)
{
    if (strings.getNum() == 0 || !canUseFonts())
        return;
    const QFont font = fontOf(state);
    const QFontMetricsF metrics(font);
    const qreal scale = 1.0 / OutlineSize;
    for (int i = 0; i < strings.getNum(); ++i) {
        QPainterPath path;
        path.addText(0, 0, font, strings[i].toQString());
        // Windows count y downwards.
        m_lines.push_back({QTransform::fromScale(scale, -scale).map(path),
                           static_cast<float>(metrics.horizontalAdvance(strings[i].toQString()) * scale)});
    }
}
