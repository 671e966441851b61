#pragma once

#include <cstdint>

#include <vexel/base/SbVec3f.h>

/** One corner of a triangle, line segment or point, in the space of the shape. */
struct SoPrimitiveVertex {
    SbVec3f point;
    SbVec3f normal{0, 0, 1};
    SbVec3f textureCoordinate;
    /** Index into the material lists of the state. */
    std::uint32_t materialIndex = 0;
    /** Index of the coordinate that the corner came from; -1 for shapes that make their own. */
    std::int32_t coordinateIndex = -1;
};
