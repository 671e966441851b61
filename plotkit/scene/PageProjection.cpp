#include "PageProjection.h"

#include <vexel/nodes/SoCamera.h>
#include <vexel/state/SoState.h>

namespace {

/** The part of the picture that the camera fills. */
PageRect viewOf(const SoState& state, const PageRect& picture)
{
    if (!state->camera)
        return picture;
    const SbViewportRegion& region = state.getViewportRegion();
    const SbViewportRegion view = state->camera->getViewportBounds(region);
    const SbVec2s from = view.getViewportOriginPixels() - region.getViewportOriginPixels();
    const SbVec2s size = view.getViewportSizePixels();
    const SbVec2s whole = region.getViewportSizePixels();
    const double x = picture.width / whole[0];
    const double y = picture.height / whole[1];
    return {picture.left + from[0] * x, picture.bottom + from[1] * y, size[0] * x, size[1] * y};
}

} // namespace

PageProjection::PageProjection(const SoState& state, const PageRect& picture)
    : m_matrix(state->viewVolume.getMatrix()), m_picture(viewOf(state, picture))
{
    for (int i = 0; i < state->numClipPlanes; ++i)
        m_planes.push_back(state.getClipPlane(i).plane);
}

PageProjection::Homogeneous PageProjection::clip(const SbVec3f& p) const
{
    const auto column = [&](int i) {
        return double(p[0]) * double(m_matrix[0][i]) + double(p[1]) * double(m_matrix[1][i]) +
               double(p[2]) * double(m_matrix[2][i]) + double(m_matrix[3][i]);
    };
    return {column(0), column(1), column(2), column(3)};
}

double PageProjection::distance(std::size_t bound, const SbVec3f& world) const
{
    if (bound >= View_bounds)
        return double(m_planes[bound - View_bounds].getDistance(world));
    const Homogeneous at = clip(world);
    const double coordinates[] = {at.x, at.y, at.z};
    const double coordinate = coordinates[bound / 2];
    return bound % 2 ? at.w - coordinate : at.w + coordinate;
}

bool PageProjection::contains(const SbVec3f& world) const
{
    for (std::size_t bound = 0; bound < numBounds(); ++bound) {
        if (distance(bound, world) < 0)
            return false;
    }
    return true;
}

ProjectedPoint PageProjection::project(const SbVec3f& world) const
{
    const Homogeneous at = clip(world);
    ProjectedPoint point;
    point.place.x = m_picture.left + (at.x / at.w + 1) / 2 * m_picture.width;
    point.place.y = m_picture.bottom + (at.y / at.w + 1) / 2 * m_picture.height;
    point.depth = at.z / at.w;
    return point;
}
