#include <vexel/nodes/detail/TextOutline.h>

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTransform>

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/nodes/SoStateFont.h>
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

} // namespace

TextOutline::TextOutline(const SoState& state, const SoMFString& strings)
{
    if (strings.getNum() == 0 || !canUseFonts())
        return;
    QFont font = soStateFont(state);
    font.setPixelSize(OutlineSize);
    font.setHintingPreference(QFont::PreferNoHinting);
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
