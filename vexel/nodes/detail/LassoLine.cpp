#include <vexel/nodes/detail/LassoLine.h>

#include <vexel/base/SbMatrix.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void LassoLine::setOutline(std::vector<SbVec2f> outline)
{
    m_outline = std::move(outline);
    touch();
}

void LassoLine::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const SbViewportRegion& region = state.getViewportRegion();
    const SbVec2s whole = region.getViewportOriginPixels();
    const SbVec2s part = state->camera ? state->camera->getViewportBounds(region).getViewportOriginPixels() : whole;
    const SbVec2s size = state.getViewPixels();
    if (m_outline.size() < 2 || size[0] < 1 || size[1] < 1)
        return;
    const SbViewVolume& view = state->viewVolume;
    const SbMatrix toObject = state->model.inverse();
    for (const SbVec2f& pixel : m_outline) {
        const SbVec2f screen((pixel[0] + float(whole[0] - part[0])) / float(size[0]),
                             (pixel[1] + float(whole[1] - part[1])) / float(size[1]));
        // Between the near and far distance it is not cut off; it is drawn in front of everything anyway.
        SbVec3f point;
        toObject.multVecMatrix(view.getPlanePoint(view.getNearDist() + view.getDepth() / 2, screen), point);
        geometry.points.push_back(point);
    }
    const auto num = static_cast<std::uint32_t>(m_outline.size());
    for (std::uint32_t i = 0; i < num; ++i) {
        geometry.lines.push_back(i);
        geometry.lines.push_back((i + 1) % num);
    }
}
