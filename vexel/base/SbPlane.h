#pragma once

#include <vexel/base/SbVec3f.h>

class SbLine;
class SbMatrix;

/**
 * Oriented plane: a unit normal and the distance from the origin along it. Points in the direction of the normal are
 * in its half-space. A default-constructed plane is z = 0 with the normal along z.
 */
class VEXEL_API SbPlane {
public:
    SbPlane() noexcept = default;
    SbPlane(const SbVec3f& normal, float distance) noexcept;
    SbPlane(const SbVec3f& normal, const SbVec3f& pointOnPlane) noexcept;
    /** The plane of three points, which run counter-clockwise when the normal points at the viewer. */
    SbPlane(const SbVec3f& p0, const SbVec3f& p1, const SbVec3f& p2) noexcept;

    const SbVec3f& getNormal() const noexcept { return m_normal; }
    float getDistanceFromOrigin() const noexcept { return m_distance; }
    /** Distance of a point, negative outside the half-space. */
    float getDistance(const SbVec3f& point) const noexcept;
    bool isInHalfSpace(const SbVec3f& point) const noexcept { return getDistance(point) >= 0; }

    /** Moves the plane along its normal. */
    void offset(float distance) noexcept { m_distance += distance; }
    /** Moves the plane with all its points; a singular matrix leaves it as it is. */
    void transform(const SbMatrix& matrix) noexcept;

    /** The point where the line meets the plane; false, and nothing set, when they are parallel. */
    bool intersect(const SbLine& line, SbVec3f& intersection) const noexcept;

    bool equals(const SbPlane& other, float tolerance) const noexcept;
    friend bool operator==(const SbPlane& a, const SbPlane& b) noexcept
    {
        return a.m_normal == b.m_normal && a.m_distance == b.m_distance;
    }
    friend bool operator!=(const SbPlane& a, const SbPlane& b) noexcept { return !(a == b); }

private:
    SbVec3f m_normal{0, 0, 1};
    float m_distance = 0;
};
