#pragma once

#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbMatrix.h>

/**
 * Box with a transform: stays tight around content that is rotated, where an axis-aligned box would grow.
 * Bounds are in the box's own space; the matrix leads from there to the space of the caller ("world").
 */
class VEXEL_API SbXfBox3f {
public:
    SbXfBox3f() noexcept = default;
    SbXfBox3f(const SbVec3f& min, const SbVec3f& max) noexcept : m_box(min, max) {}
    explicit SbXfBox3f(const SbBox3f& box, const SbMatrix& transform = SbMatrix()) noexcept
        : m_box(box), m_transform(transform)
    {
    }

    const SbBox3f& getBox() const noexcept { return m_box; }
    void setBounds(const SbVec3f& min, const SbVec3f& max) noexcept { m_box.setBounds(min, max); }
    const SbMatrix& getTransform() const noexcept { return m_transform; }
    void setTransform(const SbMatrix& transform) noexcept { m_transform = transform; }
    /** Applies one more transform after the present one. */
    void transform(const SbMatrix& matrix) noexcept { m_transform.multRight(matrix); }

    void makeEmpty() noexcept { m_box.makeEmpty(); }
    bool isEmpty() const noexcept { return m_box.isEmpty(); }

    /** Middle of the box in the world; zero when it is empty. */
    SbVec3f getCenter() const noexcept;
    /** Lengths of the edges in the box's own space. */
    SbVec3f getSize() const noexcept { return m_box.getSize(); }
    /** Volume in the world. */
    float getVolume() const noexcept;
    /** The axis-aligned box around this box in the world. */
    SbBox3f project() const noexcept;

    /** Takes in a point of the world. */
    void extendBy(const SbVec3f& point) noexcept { extendBy(SbXfBox3f(point, point)); }
    /** Takes in a box of the world. */
    void extendBy(const SbBox3f& box) noexcept { extendBy(SbXfBox3f(box)); }
    /** Takes in another box; keeps the transform of one of the two, whichever gives the smaller volume. */
    void extendBy(const SbXfBox3f& other) noexcept;

    /** True when a point of the world lies in the box; a box whose transform is singular holds no point. */
    bool intersect(const SbVec3f& point) const noexcept;

    friend bool operator==(const SbXfBox3f& a, const SbXfBox3f& b) noexcept
    {
        return a.m_box == b.m_box && a.m_transform == b.m_transform;
    }
    friend bool operator!=(const SbXfBox3f& a, const SbXfBox3f& b) noexcept { return !(a == b); }

private:
    SbXfBox3f grownBy(const SbXfBox3f& other) const noexcept;

    SbBox3f m_box;
    SbMatrix m_transform;
};
