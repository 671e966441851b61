#include <vexel/base/SbLine.h>

#include <vexel/base/SbVec3d.h>

void SbLine::setPosDir(const SbVec3f& position, const SbVec3f& direction) noexcept
{
    m_position = position;
    m_direction = direction;
    m_direction.normalize();
}

SbVec3f SbLine::getClosestPoint(const SbVec3f& point) const noexcept
{
    return m_position + m_direction * (point - m_position).dot(m_direction);
}

bool SbLine::getClosestPoints(const SbLine& other, SbVec3f& onThis, SbVec3f& onOther) const noexcept
{
    const SbVec3d p(m_position);
    const SbVec3d q(other.m_position);
    const SbVec3d u(m_direction);
    const SbVec3d v(other.m_direction);
    const SbVec3d normal = u.cross(v);
    const double sqrSine = normal.sqrLength();
    if (sqrSine < 1e-12)
        return false;
    const SbVec3d between = q - p;
    onThis = SbVec3f(p + u * (between.cross(v).dot(normal) / sqrSine));
    onOther = SbVec3f(q + v * (between.cross(u).dot(normal) / sqrSine));
    return true;
}
