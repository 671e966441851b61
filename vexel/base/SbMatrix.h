#pragma once

#include <vexel/base/SbVec3f.h>

class SbLine;
class SbRotation;
class SbVec4f;

/** Plain storage of a matrix: four rows of four. */
using SbMat = float[4][4];

/**
 * 4x4 matrix that multiplies row vectors from the right: `v * A * B` applies A first. The translation stands in the
 * last row. A default-constructed matrix is the identity.
 */
class VEXEL_API SbMatrix {
public:
    constexpr SbMatrix() noexcept = default;
    /** Row by row. */
    constexpr SbMatrix(float a11, float a12, float a13, float a14, float a21, float a22, float a23, float a24,
                       float a31, float a32, float a33, float a34, float a41, float a42, float a43, float a44) noexcept
        : m_matrix{{a11, a12, a13, a14}, {a21, a22, a23, a24}, {a31, a32, a33, a34}, {a41, a42, a43, a44}}
    {
    }
    explicit SbMatrix(const SbMat& matrix) noexcept { setValue(matrix); }

    static constexpr SbMatrix identity() noexcept { return {}; }

    void setValue(const SbMat& matrix) noexcept;
    constexpr const SbMat& getValue() const noexcept { return m_matrix; }
    constexpr float* operator[](int row) noexcept { return m_matrix[row]; }
    constexpr const float* operator[](int row) const noexcept { return m_matrix[row]; }

    void makeIdentity() noexcept { *this = SbMatrix(); }
    void setScale(float factor) noexcept { setScale(SbVec3f(factor, factor, factor)); }
    void setScale(const SbVec3f& factors) noexcept;
    void setTranslate(const SbVec3f& translation) noexcept;
    void setRotate(const SbRotation& rotation) noexcept;

    /**
     * Scales along the axes turned by `scaleOrientation`, then rotates, both about `center`, then translates.
     */
    void setTransform(const SbVec3f& translation, const SbRotation& rotation, const SbVec3f& scale,
                      const SbRotation& scaleOrientation, const SbVec3f& center) noexcept;
    void setTransform(const SbVec3f& translation, const SbRotation& rotation, const SbVec3f& scale,
                      const SbRotation& scaleOrientation) noexcept;
    void setTransform(const SbVec3f& translation, const SbRotation& rotation, const SbVec3f& scale) noexcept;

    /**
     * The arguments with which setTransform() gives this matrix again; for a singular matrix too. A mirroring matrix
     * has one negative scale factor. The fourth column is ignored.
     */
    void getTransform(SbVec3f& translation, SbRotation& rotation, SbVec3f& scale, SbRotation& scaleOrientation,
                      const SbVec3f& center) const noexcept;
    void getTransform(SbVec3f& translation, SbRotation& rotation, SbVec3f& scale,
                      SbRotation& scaleOrientation) const noexcept;

    /** Determinant of the upper left 3x3 part: negative when the matrix mirrors. */
    float det3() const noexcept;
    float det4() const noexcept;
    /** False when the matrix is singular up to rounding, or not finite. */
    bool isInvertible() const noexcept;
    /** The inverse; the identity when there is none. */
    SbMatrix inverse() const noexcept;
    SbMatrix transpose() const noexcept;

    /** this = this * matrix */
    SbMatrix& multRight(const SbMatrix& matrix) noexcept;
    /** this = matrix * this */
    SbMatrix& multLeft(const SbMatrix& matrix) noexcept;
    SbMatrix& operator*=(const SbMatrix& matrix) noexcept { return multRight(matrix); }
    friend SbMatrix operator*(SbMatrix a, const SbMatrix& b) noexcept { return a.multRight(b); }

    /** Point times matrix, divided by w (not divided when w is 0). `dst` may be the same object as `src`. */
    void multVecMatrix(const SbVec3f& src, SbVec3f& dst) const noexcept;
    /** Homogeneous point times matrix. */
    void multVecMatrix(const SbVec4f& src, SbVec4f& dst) const noexcept;
    /** Direction times matrix: translation and projection play no part. */
    void multDirMatrix(const SbVec3f& src, SbVec3f& dst) const noexcept;
    /** Moves a line: its position as a point, its direction as a direction. */
    void multLineMatrix(const SbLine& src, SbLine& dst) const noexcept;

    friend VEXEL_API bool operator==(const SbMatrix& a, const SbMatrix& b) noexcept;
    friend bool operator!=(const SbMatrix& a, const SbMatrix& b) noexcept { return !(a == b); }
    /** True when no element differs by more than `tolerance`. */
    bool equals(const SbMatrix& other, float tolerance) const noexcept;

private:
    SbMat m_matrix = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
};
