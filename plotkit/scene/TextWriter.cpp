#include "TextWriter.h"

#include "LineLead.h"
#include "PageProjection.h"
#include "SurfaceShader.h"

#include <vexel/nodes/SoStateFont.h>
#include <vexel/nodes/SoText2.h>
#include <vexel/state/SoState.h>

#include <QFont>
#include <QFontInfo>
#include <QFontMetricsF>

namespace {

/** Pixels of the font with which the width of a text is measured. */
constexpr int Measured_size = 256;

/** Part of a text's width that lies before the place where it is put. */
double partBefore(int justification)
{
    if (justification == SoText2::RIGHT)
        return 1;
    return justification == SoText2::CENTER ? 0.5 : 0;
}

} // namespace

PagePrimitives::Text TextWriter::lineAt(const SbVec3f& place) const
{
    const ProjectedPoint at = m_projection.project(place);
    const SurfaceMaterial material = SurfaceMaterial::of(m_state, 0);
    SurfacePoint point;
    point.place = place;
    point.normal = m_shader.towardsEye(place);
    point.base = SbVec4f(material.diffuse[0], material.diffuse[1], material.diffuse[2], material.alpha);
    PagePrimitives::Text line;
    line.depth = at.depth - Line_lead;
    line.text.place = at.place;
    line.text.size = double(m_state->fontSize * m_state.getViewportRegion().getPixelsPerPoint()) * m_pixel;
    line.text.color = m_shader.color(point);
    return line;
}

void TextWriter::write(const SoText2& text, PagePrimitives& primitives) const
{
    SbVec3f origin;
    m_state->model.multVecMatrix(SbVec3f(0, 0, 0), origin);
    if (!m_projection.contains(origin))
        return;
    QFont font = soStateFont(m_state);
    PagePrimitives::Text line = lineAt(origin);
    const PagePoint place = line.text.place;
    line.text.family = QFontInfo(font).family();
    line.text.isBold = font.bold();
    line.text.isItalic = font.italic();
    font.setPixelSize(Measured_size);
    const QFontMetricsF metrics(font);
    const double before = partBefore(text.justification.getValue());
    for (int i = 0; i < text.string.getNum(); ++i) {
        line.text.text = text.string[i].toQString();
        line.text.width = metrics.horizontalAdvance(line.text.text) / Measured_size * line.text.size;
        line.text.place = {place.x - before * line.text.width,
                           place.y - i * double(text.spacing.getValue()) * line.text.size};
        if (!line.text.text.isEmpty())
            primitives.texts.push_back(line);
    }
}
