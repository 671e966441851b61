#include <vexel/pick/PickQuery.h>

#include <algorithm>
#include <cmath>

#include <vexel/render/RenderView.h>

namespace vexel {

namespace {

/** Of a circle without extent only the middle counts; it must still have one. */
constexpr float LeastRadius = 1e-3f;

} // namespace

PickQuery PickQuery::atPixel(const RenderView& view, float x, float y, float radius)
{
    PickQuery query;
    const auto width = static_cast<float>(view.viewport.width);
    const auto height = static_cast<float>(view.viewport.height);
    const SbMatrix clip = view.view * view.projection;
    if (!(width > 0 && height > 0) || !clip.isInvertible())
        return query;
    const float middle_x = 2 * (x - static_cast<float>(view.viewport.x)) / width - 1;
    const float middle_y = 2 * (y - static_cast<float>(view.viewport.y)) / height - 1;

    const SbMatrix back = clip.inverse();
    SbVec3f end;
    back.multVecMatrix(SbVec3f(middle_x, middle_y, -1), query.m_origin);
    back.multVecMatrix(SbVec3f(middle_x, middle_y, 1), end);
    query.m_direction = end - query.m_origin;
    query.m_farthest = query.m_direction.normalize();
    query.m_valid = std::isfinite(query.m_farthest) && query.m_farthest > 0;

    query.m_isPixel = true;
    query.m_radius = std::max(radius, LeastRadius);
    SbMatrix zoom;
    zoom[0][0] = width / (2 * query.m_radius);
    zoom[1][1] = height / (2 * query.m_radius);
    zoom[3][0] = -middle_x * zoom[0][0];
    zoom[3][1] = -middle_y * zoom[1][1];
    query.m_circle = clip * zoom;
    return query;
}

PickQuery PickQuery::alongRay(const SbVec3f& origin, const SbVec3f& direction, float radius, float nearest,
                              float farthest)
{
    PickQuery query;
    query.m_origin = origin;
    query.m_direction = direction;
    const float length = query.m_direction.normalize();
    query.m_valid = std::isfinite(length) && length > 0 && nearest <= farthest;
    query.m_nearest = nearest;
    query.m_farthest = farthest;
    query.m_radius = std::max(radius, LeastRadius);
    if (!query.m_valid)
        return query;

    // A parallel view along the ray, as wide as the circle.
    const SbVec3f& forward = query.m_direction;
    const SbVec3f helper = std::fabs(forward[0]) < 0.7f ? SbVec3f(1, 0, 0) : SbVec3f(0, 1, 0);
    SbVec3f right = forward.cross(helper);
    right.normalize();
    const SbVec3f up = right.cross(forward);
    SbMatrix& m = query.m_circle;
    for (int axis = 0; axis < 3; ++axis) {
        m[axis][0] = right[axis] / query.m_radius;
        m[axis][1] = up[axis] / query.m_radius;
    }
    m[3][0] = -right.dot(origin) / query.m_radius;
    m[3][1] = -up.dot(origin) / query.m_radius;
    return query;
}

float PickQuery::reach(float pixelSize) const
{
    return std::max(1.0f, pixels(0.5f * pixelSize));
}

SbMatrix PickQuery::circleMatrix(const Bounds& box) const
{
    if (m_isPixel)
        return m_circle;
    // A ray may have no end; the depth range then ends behind the farthest corner of the box.
    float end = -m_direction.dot(m_origin);
    for (int axis = 0; axis < 3; ++axis)
        end += std::max(box.lo[axis] * m_direction[axis], box.hi[axis] * m_direction[axis]);
    const float range = std::max(std::min(m_farthest, end * 1.001f) - m_nearest, 1e-18f);
    SbMatrix result = m_circle;
    for (int axis = 0; axis < 3; ++axis)
        result[axis][2] = m_direction[axis] * 2 / range;
    result[3][2] = -(m_direction.dot(m_origin) + m_nearest) * 2 / range - 1;
    return result;
}

} // namespace vexel
