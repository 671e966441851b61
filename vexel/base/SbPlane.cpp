#include <vexel/base/SbPlane.h>

#include <vexel/base/SbLine.h>
#include <vexel/base/SbMatrix.h>

#include <cmath>

static SbVec3f unit(SbVec3f v) noexcept
{
    v.normalize();
    return v;
}

SbPlane::SbPlane(const SbVec3f& normal, float distance) noexcept : m_normal(unit(normal)), m_distance(distance) {}

SbPlane::SbPlane(const SbVec3f& normal, const SbVec3f& pointOnPlane) noexcept
    : m_normal(unit(normal)), m_distance(m_normal.dot(pointOnPlane))
{
}

SbPlane::SbPlane(const SbVec3f& p0, const SbVec3f& p1, const SbVec3f& p2) noexcept
    : SbPlane((p1 - p0).cross(p2 - p0), p0)
{
}

float SbPlane::getDistance(const SbVec3f& point) const noexcept
{
    return m_normal.dot(point) - m_distance;
}

void SbPlane::transform(const SbMatrix& matrix) noexcept
{
    if (!matrix.isInvertible())
        return;
    SbVec3f point = m_normal * m_distance;
    matrix.multVecMatrix(point, point);
    // Normals are moved by the inverse transpose, so that they stay at right angles to the plane under any scaling.
    SbVec3f normal;
    matrix.inverse().transpose().multDirMatrix(m_normal, normal);
    *this = SbPlane(normal, point);
}

bool SbPlane::intersect(const SbLine& line, SbVec3f& intersection) const noexcept
{
    const float speed = m_normal.dot(line.getDirection());
    if (std::abs(speed) < 1e-7f)
        return false;
    intersection = line.getPosition() - line.getDirection() * (getDistance(line.getPosition()) / speed);
    return true;
}

bool SbPlane::equals(const SbPlane& other, float tolerance) const noexcept
{
    return m_normal.equals(other.m_normal, tolerance) && std::abs(m_distance - other.m_distance) <= tolerance;
}
