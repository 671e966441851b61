#include <vexel/base/SbMatrix.h>

#include <vexel/base/SbLine.h>
#include <vexel/base/SbRotation.h>
#include <vexel/base/SbVec4f.h>
#include <vexel/base/detail/PolarDecomposition.h>

#include <algorithm>
#include <cmath>
#include <utility>

void SbMatrix::setValue(const SbMat& matrix) noexcept
{
    std::copy_n(&matrix[0][0], 16, &m_matrix[0][0]);
}

void SbMatrix::setScale(const SbVec3f& factors) noexcept
{
    makeIdentity();
    for (int i = 0; i < 3; ++i)
        m_matrix[i][i] = factors[i];
}

void SbMatrix::setTranslate(const SbVec3f& translation) noexcept
{
    makeIdentity();
    std::copy_n(translation.getValue(), 3, m_matrix[3]);
}

void SbMatrix::setRotate(const SbRotation& rotation) noexcept
{
    rotation.getValue(*this);
}

void SbMatrix::setTransform(const SbVec3f& translation, const SbRotation& rotation, const SbVec3f& scale,
                            const SbRotation& scaleOrientation, const SbVec3f& center) noexcept
{
    SbMatrix scaling;
    scaling.setScale(scale);
    if (scaleOrientation != SbRotation() && (scale[0] != scale[1] || scale[1] != scale[2])) {
        SbMatrix turn;
        turn.setRotate(scaleOrientation);
        scaling.multRight(turn).multLeft(turn.transpose());
    }
    setRotate(rotation);
    multLeft(scaling);
    SbVec3f moved;
    multDirMatrix(center, moved);
    const SbVec3f last = translation + center - moved;
    std::copy_n(last.getValue(), 3, m_matrix[3]);
}

void SbMatrix::setTransform(const SbVec3f& translation, const SbRotation& rotation, const SbVec3f& scale,
                            const SbRotation& scaleOrientation) noexcept
{
    setTransform(translation, rotation, scale, scaleOrientation, SbVec3f());
}

void SbMatrix::setTransform(const SbVec3f& translation, const SbRotation& rotation, const SbVec3f& scale) noexcept
{
    setTransform(translation, rotation, scale, SbRotation(), SbVec3f());
}

void SbMatrix::getTransform(SbVec3f& translation, SbRotation& rotation, SbVec3f& scale, SbRotation& scaleOrientation,
                            const SbVec3f& center) const noexcept
{
    vexel::detail::decomposePolar(*this, rotation, scale, scaleOrientation);
    SbVec3f moved;
    multDirMatrix(center, moved);
    translation = SbVec3f(m_matrix[3]) - center + moved;
}

void SbMatrix::getTransform(SbVec3f& translation, SbRotation& rotation, SbVec3f& scale,
                            SbRotation& scaleOrientation) const noexcept
{
    getTransform(translation, rotation, scale, scaleOrientation, SbVec3f());
}

SbMatrix SbMatrix::transpose() const noexcept
{
    SbMatrix result;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            result.m_matrix[row][column] = m_matrix[column][row];
    return result;
}

static void multiply(const SbMat& a, const SbMat& b, SbMat& product) noexcept
{
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            product[row][column] = a[row][0] * b[0][column] + a[row][1] * b[1][column] + a[row][2] * b[2][column] +
                                   a[row][3] * b[3][column];
}

SbMatrix& SbMatrix::multRight(const SbMatrix& matrix) noexcept
{
    SbMat product;
    multiply(m_matrix, matrix.m_matrix, product);
    setValue(product);
    return *this;
}

SbMatrix& SbMatrix::multLeft(const SbMatrix& matrix) noexcept
{
    SbMat product;
    multiply(matrix.m_matrix, m_matrix, product);
    setValue(product);
    return *this;
}

void SbMatrix::multVecMatrix(const SbVec3f& src, SbVec3f& dst) const noexcept
{
    const auto image = [this, x = src[0], y = src[1], z = src[2]](int column) {
        return x * m_matrix[0][column] + y * m_matrix[1][column] + z * m_matrix[2][column] + m_matrix[3][column];
    };
    const float w = image(3);
    dst.setValue(image(0), image(1), image(2));
    if (w != 0 && w != 1)
        dst /= w;
}

void SbMatrix::multVecMatrix(const SbVec4f& src, SbVec4f& dst) const noexcept
{
    const SbVec4f v = src;
    for (int column = 0; column < 4; ++column)
        dst[column] = v[0] * m_matrix[0][column] + v[1] * m_matrix[1][column] + v[2] * m_matrix[2][column] +
                      v[3] * m_matrix[3][column];
}

void SbMatrix::multDirMatrix(const SbVec3f& src, SbVec3f& dst) const noexcept
{
    const SbVec3f v = src;
    for (int column = 0; column < 3; ++column)
        dst[column] = v[0] * m_matrix[0][column] + v[1] * m_matrix[1][column] + v[2] * m_matrix[2][column];
}

void SbMatrix::multLineMatrix(const SbLine& src, SbLine& dst) const noexcept
{
    SbVec3f position;
    SbVec3f direction;
    multVecMatrix(src.getPosition(), position);
    multDirMatrix(src.getDirection(), direction);
    dst.setPosDir(position, direction);
}

bool operator==(const SbMatrix& a, const SbMatrix& b) noexcept
{
    return std::equal(&a.m_matrix[0][0], &a.m_matrix[0][0] + 16, &b.m_matrix[0][0]);
}

bool SbMatrix::equals(const SbMatrix& other, float tolerance) const noexcept
{
    return std::equal(&m_matrix[0][0], &m_matrix[0][0] + 16, &other.m_matrix[0][0],
                      [tolerance](float a, float b) { return std::abs(a - b) <= tolerance; });
}
