#pragma once

#include <vexel/base/SbVec3f.h>

class SbMatrix;

/**
 * Rotation in space, kept as a unit quaternion (x, y, z, w); angles are in radians, counter-clockwise when the axis
 * points at the viewer.
 *
 * `a * b` rotates by `a` first and then by `b`, as the product of their matrices does. A default-constructed rotation
 * turns nothing. A quaternion or an axis of length 0 stands for no rotation.
 */
class VEXEL_API SbRotation {
public:
    constexpr SbRotation() noexcept = default;
    SbRotation(const SbVec3f& axis, float radians) noexcept { setValue(axis, radians); }
    SbRotation(float q0, float q1, float q2, float q3) noexcept { setValue(q0, q1, q2, q3); }
    explicit SbRotation(const float q[4]) noexcept { setValue(q); }
    explicit SbRotation(const SbMatrix& matrix) noexcept { setValue(matrix); }
    /** The shortest rotation that turns the direction `from` into `to`. */
    SbRotation(const SbVec3f& from, const SbVec3f& to) noexcept { setValue(from, to); }

    static constexpr SbRotation identity() noexcept { return {}; }

    SbRotation& setValue(const SbVec3f& axis, float radians) noexcept;
    SbRotation& setValue(float q0, float q1, float q2, float q3) noexcept;
    SbRotation& setValue(const float q[4]) noexcept { return setValue(q[0], q[1], q[2], q[3]); }
    /** Takes the upper left 3x3 part, whose rows must be orthogonal and right-handed; their lengths are ignored. */
    SbRotation& setValue(const SbMatrix& matrix) noexcept;
    SbRotation& setValue(const SbVec3f& from, const SbVec3f& to) noexcept;

    /** The quaternion x, y, z, w. */
    constexpr const float* getValue() const noexcept { return m_quat; }
    void getValue(float& q0, float& q1, float& q2, float& q3) const noexcept;
    /** Unit axis and angle from 0 to 2 pi; no rotation answers the z axis and 0. */
    void getValue(SbVec3f& axis, float& radians) const noexcept;
    void getValue(SbMatrix& matrix) const noexcept;
    constexpr float operator[](int i) const noexcept { return m_quat[i]; }

    /** Makes this the opposite rotation. */
    SbRotation& invert() noexcept;
    SbRotation inverse() const noexcept { return SbRotation(*this).invert(); }

    /** Multiplies the angle. */
    void scaleAngle(float factor) noexcept;

    /** Rotates `src`; `dst` may be the same object. */
    void multVec(const SbVec3f& src, SbVec3f& dst) const noexcept;

    /** The rotation at `t` (0 to 1) of the steady way from `from` to `to`, the shorter way round. */
    static SbRotation slerp(const SbRotation& from, const SbRotation& to, float t) noexcept;

    SbRotation& operator*=(const SbRotation& next) noexcept;
    friend SbRotation operator*(SbRotation a, const SbRotation& b) noexcept { return a *= b; }

    /** Equal quaternions, or opposite ones, which rotate alike. */
    friend VEXEL_API bool operator==(const SbRotation& a, const SbRotation& b) noexcept;
    friend bool operator!=(const SbRotation& a, const SbRotation& b) noexcept { return !(a == b); }
    /** True when the quaternions (or one and the opposite of the other) are at most `tolerance` apart. */
    bool equals(const SbRotation& other, float tolerance) const noexcept;

private:
    float m_quat[4] = {0, 0, 0, 1};
};
