#include "BenchShapes.h"

#include <cmath>

namespace vexel {

RenderGeometryArrays bumpyBall(int triangles)
{
    RenderGeometryArrays shape;
    const int side = static_cast<int>(std::lround(std::sqrt(triangles / 2.0)));
    const double pi = 3.14159265358979;
    for (int row = 0; row <= side; ++row) {
        for (int column = 0; column <= side; ++column) {
            const double tilt = pi * row / side;
            const double turn = 2 * pi * column / side;
            const double radius = 0.95 * (1 + 0.02 * std::sin(20 * turn) * std::sin(18 * tilt));
            const SbVec3f normal(static_cast<float>(std::sin(tilt) * std::cos(turn)),
                                 static_cast<float>(std::cos(tilt)),
                                 static_cast<float>(std::sin(tilt) * std::sin(turn)));
            shape.normals.push_back(normal);
            shape.positions.push_back(normal * static_cast<float>(radius));
        }
    }
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const auto a = static_cast<std::uint32_t>(row * (side + 1) + column);
            const auto below = a + static_cast<std::uint32_t>(side) + 1;
            shape.indices.insert(shape.indices.end(), {a, a + 1, below, a + 1, below + 1, below});
        }
    }
    return shape;
}

RenderGeometryArrays sharpCube()
{
    RenderGeometryArrays shape;
    for (int face = 0; face < 6; ++face) {
        const int axis = face / 2;
        const auto first = static_cast<std::uint32_t>(shape.positions.size());
        for (int corner = 0; corner < 4; ++corner) {
            SbVec3f normal(0, 0, 0);
            normal[axis] = face % 2 ? 1.0f : -1.0f;
            SbVec3f position = normal;
            position[(axis + 1) % 3] = corner & 1 ? 1.0f : -1.0f;
            position[(axis + 2) % 3] = corner & 2 ? 1.0f : -1.0f;
            shape.positions.push_back(position);
            shape.normals.push_back(normal);
        }
        shape.indices.insert(shape.indices.end(), {first, first + 1, first + 2, first + 2, first + 1, first + 3});
    }
    return shape;
}

} // namespace vexel
