#include <vexel/render/detail/Frustum.h>

namespace vexel {

void Frustum::addPlane(float a, float b, float c, float d)
{
    float* plane = m_planes[m_count++];
    plane[0] = a;
    plane[1] = b;
    plane[2] = c;
    plane[3] = d;
}

Frustum Frustum::ofClipMatrix(const float matrix[16])
{
    return ofClipRectangle(matrix, -1, -1, 1, 1);
}

Frustum Frustum::ofClipRectangle(const float m[16], float left, float bottom, float right, float top)
{
    // A clip coordinate is the product with one column; each side of the volume is `coordinate >= bound * w`.
    struct Face {
        int column;
        float bound;
        float sign;
    };
    const Face faces[] = {{0, left, 1}, {0, right, -1}, {1, bottom, 1}, {1, top, -1}, {2, -1, 1}, {2, 1, -1}};
    Frustum frustum;
    for (const Face& face : faces) {
        float plane[4];
        for (int row = 0; row < 4; ++row)
            plane[row] = face.sign * (m[row * 4 + face.column] - face.bound * m[row * 4 + 3]);
        frustum.addPlane(plane[0], plane[1], plane[2], plane[3]);
    }
    return frustum;
}

Frustum Frustum::inSpaceBefore(const float rows[12]) const
{
    Frustum result;
    for (int i = 0; i < m_count; ++i) {
        const float* p = m_planes[i];
        float plane[4];
        for (int column = 0; column < 4; ++column)
            plane[column] = p[0] * rows[column] + p[1] * rows[4 + column] + p[2] * rows[8 + column];
        result.addPlane(plane[0], plane[1], plane[2], plane[3] + p[3]);
    }
    return result;
}

Frustum::Side Frustum::classify(const Bounds& bounds) const
{
    if (bounds.isEmpty())
        return Side::Outside;
    Side side = Side::Inside;
    for (int i = 0; i < m_count; ++i) {
        const float* p = m_planes[i];
        float farthest = p[3];
        float nearest = p[3];
        for (int axis = 0; axis < 3; ++axis) {
            farthest += p[axis] * (p[axis] > 0 ? bounds.hi[axis] : bounds.lo[axis]);
            nearest += p[axis] * (p[axis] > 0 ? bounds.lo[axis] : bounds.hi[axis]);
        }
        if (farthest < 0)
            return Side::Outside;
        if (!(nearest >= 0))
            side = Side::Crossing;
    }
    return side;
}

} // namespace vexel
