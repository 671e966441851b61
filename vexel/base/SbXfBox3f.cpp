#include <vexel/base/SbXfBox3f.h>

#include <cmath>

SbVec3f SbXfBox3f::getCenter() const noexcept
{
    SbVec3f center;
    if (!isEmpty())
        m_transform.multVecMatrix(m_box.getCenter(), center);
    return center;
}

float SbXfBox3f::getVolume() const noexcept
{
    return m_box.getVolume() * std::abs(m_transform.det3());
}

SbBox3f SbXfBox3f::project() const noexcept
{
    SbBox3f box = m_box;
    box.transform(m_transform);
    return box;
}

/** Both boxes in the space of this one, or in the world when this transform cannot be undone. */
SbXfBox3f SbXfBox3f::grownBy(const SbXfBox3f& other) const noexcept
{
    const bool invertible = m_transform.isInvertible();
    SbXfBox3f result = invertible ? *this : SbXfBox3f(project());
    SbBox3f moved = other.m_box;
    moved.transform(invertible ? other.m_transform * m_transform.inverse() : other.m_transform);
    result.m_box.extendBy(moved);
    return result;
}

void SbXfBox3f::extendBy(const SbXfBox3f& other) noexcept
{
    if (other.isEmpty())
        return;
    if (isEmpty()) {
        *this = other;
        return;
    }
    const SbXfBox3f here = grownBy(other);
    const SbXfBox3f there = other.grownBy(*this);
    *this = there.getVolume() < here.getVolume() ? there : here;
}

bool SbXfBox3f::intersect(const SbVec3f& point) const noexcept
{
    if (isEmpty() || !m_transform.isInvertible())
        return false;
    SbVec3f local;
    m_transform.inverse().multVecMatrix(point, local);
    return m_box.intersect(local);
}
