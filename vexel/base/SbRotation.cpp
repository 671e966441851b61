#include <vexel/base/SbRotation.h>

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec3d.h>

#include <algorithm>
#include <cmath>

SbRotation& SbRotation::setValue(const SbVec3f& axis, float radians) noexcept
{
    SbVec3d unit(axis);
    if (unit.normalize() == 0)
        return *this = SbRotation();
    const double half = 0.5 * static_cast<double>(radians);
    unit *= std::sin(half);
    return setValue(static_cast<float>(unit[0]), static_cast<float>(unit[1]), static_cast<float>(unit[2]),
                    static_cast<float>(std::cos(half)));
}

SbRotation& SbRotation::setValue(float q0, float q1, float q2, float q3) noexcept
{
    const double q[4] = {q0, q1, q2, q3};
    const double length = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
    if (!(length > 0) || !std::isfinite(length))
        return *this = SbRotation();
    // A quaternion that is already of unit length up to rounding stays bit for bit, so that values survive copying.
    const double factor = std::abs(length - 1) < 1e-7 ? 1 : 1 / length;
    for (int i = 0; i < 4; ++i)
        m_quat[i] = static_cast<float>(q[i] * factor);
    return *this;
}

SbRotation& SbRotation::setValue(const SbMatrix& matrix) noexcept
{
    double m[3][3];
    for (int row = 0; row < 3; ++row) {
        SbVec3d v(matrix[row][0], matrix[row][1], matrix[row][2]);
        v.normalize();
        std::copy_n(v.getValue(), 3, m[row]);
    }
    // Computes the largest component first: dividing by a small one would lose precision.
    double q[4];
    const double trace = m[0][0] + m[1][1] + m[2][2];
    if (trace > 0) {
        const double s = std::sqrt(trace + 1);
        q[3] = 0.5 * s;
        q[0] = (m[1][2] - m[2][1]) * 0.5 / s;
        q[1] = (m[2][0] - m[0][2]) * 0.5 / s;
        q[2] = (m[0][1] - m[1][0]) * 0.5 / s;
    } else {
        const int i = m[1][1] > m[0][0] ? (m[2][2] > m[1][1] ? 2 : 1) : (m[2][2] > m[0][0] ? 2 : 0);
        const int j = (i + 1) % 3;
        const int k = (i + 2) % 3;
        const double s = std::sqrt(std::max(0.0, m[i][i] - m[j][j] - m[k][k] + 1));
        const double f = s > 0 ? 0.5 / s : 0;
        q[i] = 0.5 * s;
        q[3] = (m[j][k] - m[k][j]) * f;
        q[j] = (m[i][j] + m[j][i]) * f;
        q[k] = (m[i][k] + m[k][i]) * f;
    }
    return setValue(static_cast<float>(q[0]), static_cast<float>(q[1]), static_cast<float>(q[2]),
                    static_cast<float>(q[3]));
}

SbRotation& SbRotation::setValue(const SbVec3f& from, const SbVec3f& to) noexcept
{
    SbVec3d a(from);
    SbVec3d b(to);
    if (a.normalize() == 0 || b.normalize() == 0)
        return *this = SbRotation();
    const double cosine = std::clamp(a.dot(b), -1.0, 1.0);
    SbVec3d axis = a.cross(b);
    if (cosine < 0 && axis.length() < 1e-7) {
        // Opposite directions: any axis at right angles will do; take the one from the smallest component of `a`.
        const int smallest = std::abs(a[0]) <= std::abs(a[1]) ? (std::abs(a[0]) <= std::abs(a[2]) ? 0 : 2)
                                                              : (std::abs(a[1]) <= std::abs(a[2]) ? 1 : 2);
        SbVec3d helper;
        helper[smallest] = 1;
        axis = a.cross(helper);
        axis.normalize();
        return setValue(static_cast<float>(axis[0]), static_cast<float>(axis[1]), static_cast<float>(axis[2]), 0.0f);
    }
    const double angle = std::atan2(axis.normalize(), cosine);
    axis *= std::sin(0.5 * angle);
    return setValue(static_cast<float>(axis[0]), static_cast<float>(axis[1]), static_cast<float>(axis[2]),
                    static_cast<float>(std::cos(0.5 * angle)));
}

void SbRotation::getValue(float& q0, float& q1, float& q2, float& q3) const noexcept
{
    q0 = m_quat[0];
    q1 = m_quat[1];
    q2 = m_quat[2];
    q3 = m_quat[3];
}

void SbRotation::getValue(SbVec3f& axis, float& radians) const noexcept
{
    axis.setValue(m_quat);
    const float sine = axis.normalize();
    if (sine == 0) {
        axis.setValue(0, 0, 1);
        radians = 0;
        return;
    }
    radians = 2 * std::atan2(sine, m_quat[3]);
}

void SbRotation::getValue(SbMatrix& matrix) const noexcept
{
    const double x = m_quat[0];
    const double y = m_quat[1];
    const double z = m_quat[2];
    const double w = m_quat[3];
    const auto f = [](double v) { return static_cast<float>(v); };
    matrix = SbMatrix(f(1 - 2 * (y * y + z * z)), f(2 * (x * y + z * w)), f(2 * (x * z - y * w)), 0,
                      f(2 * (x * y - z * w)), f(1 - 2 * (x * x + z * z)), f(2 * (y * z + x * w)), 0,
                      f(2 * (x * z + y * w)), f(2 * (y * z - x * w)), f(1 - 2 * (x * x + y * y)), 0, 0, 0, 0, 1);
}

SbRotation& SbRotation::invert() noexcept
{
    for (int i = 0; i < 3; ++i)
        m_quat[i] = -m_quat[i];
    return *this;
}

void SbRotation::scaleAngle(float factor) noexcept
{
    SbVec3f axis;
    float radians;
    getValue(axis, radians);
    setValue(axis, radians * factor);
}

void SbRotation::multVec(const SbVec3f& src, SbVec3f& dst) const noexcept
{
    const SbVec3f u(m_quat);
    const SbVec3f t = 2.0f * u.cross(src);
    dst = src + m_quat[3] * t + u.cross(t);
}

SbRotation SbRotation::slerp(const SbRotation& from, const SbRotation& to, float t) noexcept
{
    const float* a = from.m_quat;
    const float* b = to.m_quat;
    double cosine = 0;
    for (int i = 0; i < 4; ++i)
        cosine += static_cast<double>(a[i]) * static_cast<double>(b[i]);
    const double sign = cosine < 0 ? -1 : 1;
    cosine = std::min(1.0, sign * cosine);
    double weightA = 1 - static_cast<double>(t);
    double weightB = static_cast<double>(t);
    const double angle = std::acos(cosine);
    const double sine = std::sin(angle);
    if (sine > 1e-6) { // below, the straight line is the arc up to rounding
        weightA = std::sin(weightA * angle) / sine;
        weightB = std::sin(weightB * angle) / sine;
    }
    weightB *= sign;
    const auto mix = [&](int i) { return static_cast<float>(weightA * a[i] + weightB * b[i]); };
    return SbRotation(mix(0), mix(1), mix(2), mix(3));
}

SbRotation& SbRotation::operator*=(const SbRotation& next) noexcept
{
    float ax, ay, az, aw;
    float bx, by, bz, bw;
    getValue(ax, ay, az, aw);
    next.getValue(bx, by, bz, bw);
    return setValue(bw * ax + bx * aw + by * az - bz * ay, bw * ay - bx * az + by * aw + bz * ax,
                    bw * az + bx * ay - by * ax + bz * aw, bw * aw - bx * ax - by * ay - bz * az);
}

bool operator==(const SbRotation& a, const SbRotation& b) noexcept
{
    return std::equal(a.m_quat, a.m_quat + 4, b.m_quat) ||
           std::equal(a.m_quat, a.m_quat + 4, b.m_quat, [](float x, float y) { return x == -y; });
}

bool SbRotation::equals(const SbRotation& other, float tolerance) const noexcept
{
    double same = 0;
    double opposite = 0;
    for (int i = 0; i < 4; ++i) {
        const double d = static_cast<double>(m_quat[i]) - other.m_quat[i];
        const double s = static_cast<double>(m_quat[i]) + other.m_quat[i];
        same += d * d;
        opposite += s * s;
    }
    return std::min(same, opposite) <= static_cast<double>(tolerance) * tolerance;
}
