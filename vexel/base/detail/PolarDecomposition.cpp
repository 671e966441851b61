#include <vexel/base/detail/PolarDecomposition.h>

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbRotation.h>
#include <vexel/base/SbVec3d.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vexel::detail {

namespace {

struct Matrix3 {
    SbVec3d row[3];
};

/** Off-diagonal elements this small against their diagonal come from rounding of float input. */
constexpr double InputNoise = 1e-6;

bool isDiagonal(const Matrix3& s, double noise)
{
    for (int i = 0; i < 3; ++i)
        for (int j = i + 1; j < 3; ++j)
            if (std::abs(s.row[i][j]) > noise * std::sqrt(s.row[i][i] * s.row[j][j]))
                return false;
    return true;
}

/** One Jacobi step: turns the plane of the axes p, q so that s[p][q] vanishes, and the vectors with it. */
void rotatePlane(Matrix3& s, Matrix3& vectors, int p, int q)
{
    const double off = s.row[p][q];
    if (off == 0)
        return;
    const double theta = (s.row[q][q] - s.row[p][p]) / (2 * off);
    const double t = std::copysign(1 / (std::abs(theta) + std::sqrt(theta * theta + 1)), theta);
    const double c = 1 / std::sqrt(t * t + 1);
    const double sine = t * c;
    for (int k = 0; k < 3; ++k) {
        const double a = s.row[k][p];
        const double b = s.row[k][q];
        s.row[k][p] = c * a - sine * b;
        s.row[k][q] = sine * a + c * b;
    }
    const auto turnRows = [&](Matrix3& m) {
        const SbVec3d a = m.row[p];
        const SbVec3d b = m.row[q];
        m.row[p] = c * a - sine * b;
        m.row[q] = sine * a + c * b;
    };
    turnRows(s);
    turnRows(vectors);
}

/** Unit eigenvectors of a symmetric matrix as the rows of a right-handed rotation; the axes when it is diagonal. */
Matrix3 eigenvectors(Matrix3 s)
{
    constexpr int MaxSweeps = 30; // converges in less than ten; the limit is for input that is not finite
    Matrix3 vectors{{SbVec3d(1, 0, 0), SbVec3d(0, 1, 0), SbVec3d(0, 0, 1)}};
    if (isDiagonal(s, InputNoise))
        return vectors;
    for (int sweep = 0; sweep < MaxSweeps && !isDiagonal(s, 1e-15); ++sweep) {
        rotatePlane(s, vectors, 0, 1);
        rotatePlane(s, vectors, 0, 2);
        rotatePlane(s, vectors, 1, 2);
    }
    return vectors;
}

/** A unit vector at right angles to the unit vector `v`. */
SbVec3d anyPerpendicular(const SbVec3d& v)
{
    SbVec3d other = std::abs(v[0]) < 0.6 ? SbVec3d(1, 0, 0) : SbVec3d(0, 1, 0);
    other -= v * v.dot(other);
    other.normalize();
    return other;
}

/**
 * Orthonormal right-handed images of the axes; `order` lists the images by falling length. Short images carry the
 * rounding errors of long ones, so they are corrected after these; the last one is given by the other two.
 */
Matrix3 orthonormalImages(const Matrix3& images, const int order[3])
{
    const auto [a, b, c] = std::array<int, 3>{order[0], order[1], order[2]};
    Matrix3 u = images;
    if (u.row[a].normalize() == 0)
        u.row[a] = SbVec3d(a == 0, a == 1, a == 2);
    const double before = u.row[b].length();
    u.row[b] -= u.row[a] * u.row[a].dot(u.row[b]);
    if (u.row[b].normalize() <= 1e-12 * before)
        u.row[b] = anyPerpendicular(u.row[a]);
    u.row[c] = (b == (a + 1) % 3) ? u.row[a].cross(u.row[b]) : u.row[b].cross(u.row[a]);
    return u;
}

SbRotation toRotation(const Matrix3& m)
{
    SbMatrix matrix;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            matrix[i][j] = static_cast<float>(m.row[i][j]);
    return SbRotation(matrix);
}

} // namespace

void decomposePolar(const SbMatrix& matrix, SbRotation& rotation, SbVec3f& scale, SbRotation& scaleOrientation)
{
    Matrix3 a;
    for (int i = 0; i < 3; ++i)
        a.row[i].setValue(SbVec3f(matrix[i]));

    // A * A^T = Q^-1 * diag(scale^2) * Q, because the rotation drops out.
    Matrix3 squared;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            squared.row[i][j] = a.row[i].dot(a.row[j]);
    const Matrix3 q = eigenvectors(squared);

    Matrix3 images;
    for (int i = 0; i < 3; ++i)
        images.row[i] = q.row[i][0] * a.row[0] + q.row[i][1] * a.row[1] + q.row[i][2] * a.row[2];
    int order[3] = {0, 1, 2};
    std::stable_sort(order, order + 3,
                     [&](int i, int j) { return images.row[i].sqrLength() > images.row[j].sqrLength(); });
    Matrix3 u = orthonormalImages(images, order);

    // The last image comes out right-handed; when the true one is opposite, the matrix mirrors. The mirrored axis is a
    // free choice: take the one that leaves the smallest rotation.
    SbVec3d factors;
    for (int i = 0; i < 3; ++i)
        factors[i] = images.row[i].dot(u.row[i]);
    const int last = order[2];
    if (factors[last] < 0) {
        const auto alignment = [&](int i) { return q.row[i].dot(u.row[i]) * (i == last ? -1 : 1); };
        int mirrored = last;
        for (int i = 0; i < 3; ++i)
            if (alignment(i) < alignment(mirrored))
                mirrored = i;
        if (mirrored != last) {
            for (const int i : {last, mirrored}) {
                u.row[i].negate();
                factors[i] = -factors[i];
            }
        }
    }

    Matrix3 r;
    for (int i = 0; i < 3; ++i)
        r.row[i] = q.row[0][i] * u.row[0] + q.row[1][i] * u.row[1] + q.row[2][i] * u.row[2];
    rotation = toRotation(r);
    scale = SbVec3f(factors);
    scaleOrientation = toRotation(q);
}

} // namespace vexel::detail
