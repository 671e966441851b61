#include "PrimitiveCollector.h"

#include "ShapeWriter.h"

#include <vexel/nodes/SoGradientBackground.h>
#include <vexel/nodes/SoShape.h>

#include <algorithm>
#include <utility>

namespace {

PageColor opaque(const SbColor& color)
{
    return {color[0], color[1], color[2], 1};
}

} // namespace

PrimitiveCollector::PrimitiveCollector(const PageRect& picture, const SbViewportRegion& region)
    : m_picture(picture), m_pixel(picture.width / std::max<double>(region.getViewportSizePixels()[0], 1))
{
    state().setViewportRegion(region);
}

void PrimitiveCollector::beginTraversal()
{
    m_scene = PagePrimitives();
    m_annotations = PagePrimitives();
    m_background.reset();
}

void PrimitiveCollector::visitNode(SoNode& node)
{
    if (node.isOfType(SoGradientBackground::getClassTypeId())) {
        const auto& gradient = static_cast<const SoGradientBackground&>(node);
        m_background = {opaque(gradient.color1.getValue()), opaque(gradient.color0.getValue())};
        if (gradient.swapColors.getValue())
            std::swap(m_background->bottom, m_background->top);
    }
    SoAction::visitNode(node);
}

void PrimitiveCollector::visitShape(SoShape& shape)
{
    PagePrimitives& primitives = state()->isAnnotation ? m_annotations : m_scene;
    ShapeWriter(state(), shape, m_picture, m_pixel, primitives).write();
}
