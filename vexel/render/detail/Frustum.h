#pragma once

#include <vexel/render/detail/Bounds.h>

namespace vexel {

/** Convex region bounded by up to six planes, against which boxes are tested conservatively. */
class Frustum {
public:
    enum class Side { Outside, Crossing, Inside };

    /** The view volume of a matrix that maps points, as row vectors, to clip space. */
    static Frustum ofClipMatrix(const float matrix[16]);

    /** The part of that view volume which projects into a rectangle of normalized device coordinates. */
    static Frustum ofClipRectangle(const float matrix[16], float left, float bottom, float right, float top);

    /** The same region in the space that `rows` (three rows of four, column vectors) maps from. */
    Frustum inSpaceBefore(const float rows[12]) const;

    Side classify(const Bounds& bounds) const;

private:
    void addPlane(float a, float b, float c, float d);

    float m_planes[6][4];
    int m_count = 0;
};

} // namespace vexel
