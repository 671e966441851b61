// Determinants and inverse of SbMatrix, computed in double because float cancellation shows in picking and cameras.

#include <vexel/base/SbMatrix.h>

#include <cmath>

namespace {

/** The 2x2 minors of the upper and of the lower two rows, from which determinant and cofactors follow. */
struct Minors {
    explicit Minors(const SbMat& m)
    {
        static constexpr int Pairs[6][2] = {{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}};
        for (int i = 0; i < 6; ++i) {
            const int p = Pairs[i][0];
            const int q = Pairs[i][1];
            s[i] = double(m[0][p]) * m[1][q] - double(m[1][p]) * m[0][q];
            c[i] = double(m[2][p]) * m[3][q] - double(m[3][p]) * m[2][q];
        }
    }

    double determinant() const
    {
        return s[0] * c[5] - s[1] * c[4] + s[2] * c[3] + s[3] * c[2] - s[4] * c[1] + s[5] * c[0];
    }

    double s[6];
    double c[6];
};

/** The determinant is judged against the volume that rows of these lengths could span. */
bool isRegular(const SbMat& m, double determinant)
{
    double volume = 1;
    for (const auto& row : m)
        volume *= std::sqrt(double(row[0]) * row[0] + double(row[1]) * row[1] + double(row[2]) * row[2] +
                            double(row[3]) * row[3]);
    return std::isfinite(determinant) && std::isfinite(volume) && std::abs(determinant) > 1e-14 * volume;
}

} // namespace

float SbMatrix::det3() const noexcept
{
    const SbMat& m = m_matrix;
    const auto minor = [&](int p, int q) { return double(m[1][p]) * m[2][q] - double(m[1][q]) * m[2][p]; };
    return static_cast<float>(m[0][0] * minor(1, 2) - m[0][1] * minor(0, 2) + m[0][2] * minor(0, 1));
}

float SbMatrix::det4() const noexcept
{
    return static_cast<float>(Minors(m_matrix).determinant());
}

bool SbMatrix::isInvertible() const noexcept
{
    return isRegular(m_matrix, Minors(m_matrix).determinant());
}

SbMatrix SbMatrix::inverse() const noexcept
{
    const SbMat& m = m_matrix;
    const Minors minors(m);
    const double* s = minors.s;
    const double* c = minors.c;
    const double determinant = minors.determinant();
    if (!isRegular(m, determinant))
        return SbMatrix();
    const auto f = [determinant](double cofactor) { return static_cast<float>(cofactor / determinant); };
    return SbMatrix(
        f(m[1][1] * c[5] - m[1][2] * c[4] + m[1][3] * c[3]), f(-m[0][1] * c[5] + m[0][2] * c[4] - m[0][3] * c[3]),
        f(m[3][1] * s[5] - m[3][2] * s[4] + m[3][3] * s[3]), f(-m[2][1] * s[5] + m[2][2] * s[4] - m[2][3] * s[3]),
        f(-m[1][0] * c[5] + m[1][2] * c[2] - m[1][3] * c[1]), f(m[0][0] * c[5] - m[0][2] * c[2] + m[0][3] * c[1]),
        f(-m[3][0] * s[5] + m[3][2] * s[2] - m[3][3] * s[1]), f(m[2][0] * s[5] - m[2][2] * s[2] + m[2][3] * s[1]),
        f(m[1][0] * c[4] - m[1][1] * c[2] + m[1][3] * c[0]), f(-m[0][0] * c[4] + m[0][1] * c[2] - m[0][3] * c[0]),
        f(m[3][0] * s[4] - m[3][1] * s[2] + m[3][3] * s[0]), f(-m[2][0] * s[4] + m[2][1] * s[2] - m[2][3] * s[0]),
        f(-m[1][0] * c[3] + m[1][1] * c[1] - m[1][2] * c[0]), f(m[0][0] * c[3] - m[0][1] * c[1] + m[0][2] * c[0]),
        f(-m[3][0] * s[3] + m[3][1] * s[1] - m[3][2] * s[0]), f(m[2][0] * s[3] - m[2][1] * s[1] + m[2][2] * s[0]));
}
