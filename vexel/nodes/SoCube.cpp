#include <vexel/nodes/SoCube.h>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/detail/SolidBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoCube::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    struct Side {
        SbVec3f normal;
        SbVec3f right;
    };
    static const Side Sides[] = {{SbVec3f(0, 0, 1), SbVec3f(1, 0, 0)},  {SbVec3f(0, 0, -1), SbVec3f(-1, 0, 0)},
                                 {SbVec3f(-1, 0, 0), SbVec3f(0, 0, 1)}, {SbVec3f(1, 0, 0), SbVec3f(0, 0, -1)},
                                 {SbVec3f(0, 1, 0), SbVec3f(1, 0, 0)},  {SbVec3f(0, -1, 0), SbVec3f(1, 0, 0)}};
    const SbVec3f half(width.getValue() / 2, height.getValue() / 2, depth.getValue() / 2);
    SolidBuilder builder(state, geometry);
    int part = 0;
    for (const Side& side : Sides) {
        const SbVec3f up = side.normal.cross(side.right);
        builder.addGrid(part++, 1, 1, [&](int column, int row) {
            const auto s = static_cast<float>(column);
            const auto t = static_cast<float>(row);
            const SbVec3f unit = side.normal + side.right * (2 * s - 1) + up * (2 * t - 1);
            return SolidBuilder::Corner{SbVec3f(unit[0] * half[0], unit[1] * half[1], unit[2] * half[2]), side.normal,
                                        SbVec3f(s, t, 0)};
        });
        // The two triangles of a side are one face.
        geometry.triangleFaces.resize(geometry.getNumTriangles(), part - 1);
    }
    static constexpr std::uint32_t Ring[] = {0, 1, 1, 3, 3, 2, 2, 0};
    for (std::uint32_t first = 0; first < geometry.points.size(); first += 4) {
        for (const std::uint32_t corner : Ring)
            geometry.outline.push_back(first + corner);
    }
}

SbBox3f SoCube::computeBoundingBox(const SoState&) const
{
    const SbVec3f half(width.getValue() / 2, height.getValue() / 2, depth.getValue() / 2);
    SbBox3f box;
    box.extendBy(half);
    box.extendBy(-half);
    return box;
}
