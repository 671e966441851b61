#include <vexel/base/SbViewVolume.h>

#include <vexel/base/SbBox2f.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbLine.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbPlane.h>

#include <algorithm>
#include <cmath>

void SbViewVolume::setWindow(ProjectionType type, const SbVec2f& min, const SbVec2f& max, float nearDist,
                             float farDist) noexcept
{
    *this = SbViewVolume();
    m_type = type;
    m_min = min;
    m_max = max;
    m_near = nearDist;
    m_far = farDist;
}

void SbViewVolume::ortho(float left, float right, float bottom, float top, float nearDist, float farDist) noexcept
{
    setWindow(ORTHOGRAPHIC, SbVec2f(left, bottom), SbVec2f(right, top), nearDist, farDist);
}

void SbViewVolume::perspective(float heightAngle, float aspectRatio, float nearDist, float farDist) noexcept
{
    const float top = nearDist * std::tan(0.5f * heightAngle);
    const SbVec2f corner(top * aspectRatio, top);
    setWindow(PERSPECTIVE, -corner, corner, nearDist, farDist);
}

void SbViewVolume::frustum(float left, float right, float bottom, float top, float nearDist, float farDist) noexcept
{
    setWindow(PERSPECTIVE, SbVec2f(left, bottom), SbVec2f(right, top), nearDist, farDist);
}

SbVec3f SbViewVolume::getProjectionDirection() const noexcept
{
    SbVec3f direction;
    m_orientation.multVec(SbVec3f(0, 0, -1), direction);
    return direction;
}

SbVec3f SbViewVolume::getViewUp() const noexcept
{
    SbVec3f up;
    m_orientation.multVec(SbVec3f(0, 1, 0), up);
    return up;
}

SbVec3f SbViewVolume::toWorld(const SbVec3f& inCamera) const noexcept
{
    SbVec3f world;
    m_orientation.multVec(inCamera, world);
    return world + m_position;
}

SbVec3f SbViewVolume::toCamera(const SbVec3f& inWorld) const noexcept
{
    SbVec3f camera;
    m_orientation.inverse().multVec(inWorld - m_position, camera);
    return camera;
}

float SbViewVolume::growth(float distance) const noexcept
{
    return m_type == PERSPECTIVE ? distance / m_near : 1.0f;
}

SbMatrix SbViewVolume::getCameraSpaceMatrix() const noexcept
{
    SbMatrix turn;
    turn.setRotate(m_orientation.inverse());
    SbMatrix move;
    move.setTranslate(-m_position);
    return move * turn;
}

void SbViewVolume::getMatrices(SbMatrix& affine, SbMatrix& projection) const noexcept
{
    affine = getCameraSpaceMatrix();
    const float width = getWidth();
    const float height = getHeight();
    const float depth = getDepth();
    const SbVec2f sum = m_min + m_max;
    if (m_type == ORTHOGRAPHIC) {
        projection = SbMatrix(2 / width, 0, 0, 0, 0, 2 / height, 0, 0, 0, 0, -2 / depth, 0, -sum[0] / width,
                              -sum[1] / height, -(m_far + m_near) / depth, 1);
    } else {
        projection = SbMatrix(2 * m_near / width, 0, 0, 0, 0, 2 * m_near / height, 0, 0, sum[0] / width,
                              sum[1] / height, -(m_far + m_near) / depth, -1, 0, 0, -2 * m_far * m_near / depth, 0);
    }
}

SbMatrix SbViewVolume::getMatrix() const noexcept
{
    SbMatrix affine;
    SbMatrix projection;
    getMatrices(affine, projection);
    return affine * projection;
}

void SbViewVolume::projectToScreen(const SbVec3f& world, SbVec3f& screen) const noexcept
{
    const SbVec3f camera = toCamera(world);
    const float distance = -camera[2];
    // A point beside the eye has no image; leaving it undivided keeps the result finite.
    const float size = distance != 0 || m_type == ORTHOGRAPHIC ? growth(distance) : 1.0f;
    const float depth = (distance - m_near) / getDepth();
    screen.setValue((camera[0] / size - m_min[0]) / getWidth(), (camera[1] / size - m_min[1]) / getHeight(),
                    m_type == PERSPECTIVE && distance != 0 ? depth * m_far / distance : depth);
}

SbVec3f SbViewVolume::getPlanePoint(float distance, const SbVec2f& screen) const noexcept
{
    const float size = growth(distance);
    return toWorld(
        SbVec3f((m_min[0] + screen[0] * getWidth()) * size, (m_min[1] + screen[1] * getHeight()) * size, -distance));
}

void SbViewVolume::projectPointToLine(const SbVec2f& screen, SbVec3f& onNear, SbVec3f& onFar) const noexcept
{
    onNear = getPlanePoint(m_near, screen);
    onFar = getPlanePoint(m_far, screen);
}

void SbViewVolume::projectPointToLine(const SbVec2f& screen, SbLine& line) const noexcept
{
    const SbVec3f onNear = getPlanePoint(m_near, screen);
    line.setPosDir(onNear, m_type == PERSPECTIVE ? onNear - m_position : getProjectionDirection());
}

SbVec2f SbViewVolume::projectBox(const SbBox3f& box) const noexcept
{
    SbBox2f onScreen;
    const SbVec3f bounds[2] = {box.getMin(), box.getMax()};
    for (int i = 0; i < 8 && !box.isEmpty(); ++i) {
        SbVec3f corner;
        projectToScreen(SbVec3f(bounds[i & 1][0], bounds[i >> 1 & 1][1], bounds[i >> 2][2]), corner);
        onScreen.extendBy(SbVec2f(corner.getValue()));
    }
    return onScreen.getSize();
}

SbPlane SbViewVolume::getPlane(float distance) const noexcept
{
    return SbPlane(-getProjectionDirection(), getSightPoint(distance));
}

SbVec3f SbViewVolume::getSightPoint(float distance) const noexcept
{
    return m_position + getProjectionDirection() * distance;
}

float SbViewVolume::getWorldToScreenScale(const SbVec3f& center, float screenRadius) const noexcept
{
    return screenRadius * getWidth() * std::abs(growth(-toCamera(center)[2]));
}

void SbViewVolume::getViewVolumePlanes(SbPlane planes[6]) const noexcept
{
    const SbVec3f forward = getProjectionDirection();
    planes[4] = SbPlane(forward, getSightPoint(m_near));
    planes[5] = SbPlane(-forward, getSightPoint(m_far));
    const SbVec2f corners[2] = {m_min, m_max};
    for (int side = 0; side < 4; ++side) {
        const int axis = side / 2;
        const bool upper = side % 2;
        const float sign = upper ? -1.0f : 1.0f;
        const float border = corners[upper][axis];
        SbVec3f normal;
        normal[axis] = sign;
        // In perspective the side runs through the eye and leans outwards with the border of the window.
        if (m_type == PERSPECTIVE)
            normal = SbVec3f(axis == 0 ? sign * m_near : 0, axis == 1 ? sign * m_near : 0, sign * border);
        SbVec3f onBorder;
        onBorder[axis] = m_type == PERSPECTIVE ? 0 : border;
        m_orientation.multVec(normal, normal);
        planes[side] = SbPlane(normal, toWorld(onBorder));
    }
}

SbViewVolume SbViewVolume::narrow(float left, float bottom, float right, float top) const noexcept
{
    SbViewVolume part = *this;
    part.m_min.setValue(m_min[0] + left * getWidth(), m_min[1] + bottom * getHeight());
    part.m_max.setValue(m_min[0] + right * getWidth(), m_min[1] + top * getHeight());
    return part;
}

void SbViewVolume::scaleAxis(int axis, float factor) noexcept
{
    const float middle = 0.5f * (m_min[axis] + m_max[axis]);
    const float half = 0.5f * factor * (m_max[axis] - m_min[axis]);
    m_min[axis] = middle - half;
    m_max[axis] = middle + half;
}

void SbViewVolume::scale(float factor) noexcept
{
    scaleWidth(factor);
    scaleHeight(factor);
}

bool SbViewVolume::intersect(const SbVec3f& point) const noexcept
{
    SbPlane planes[6];
    getViewVolumePlanes(planes);
    return std::all_of(planes, planes + 6, [&](const SbPlane& plane) { return plane.isInHalfSpace(point); });
}

bool SbViewVolume::intersect(const SbBox3f& box) const noexcept
{
    if (box.isEmpty())
        return false;
    SbPlane planes[6];
    getViewVolumePlanes(planes);
    return std::all_of(planes, planes + 6, [&](const SbPlane& plane) {
        SbVec3f innermost = box.getMin();
        for (int i = 0; i < 3; ++i)
            if (plane.getNormal()[i] > 0)
                innermost[i] = box.getMax()[i];
        return plane.isInHalfSpace(innermost);
    });
}
