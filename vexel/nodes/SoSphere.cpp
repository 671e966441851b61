#include <vexel/nodes/SoSphere.h>

#include <cmath>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/detail/SolidBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {
constexpr float Pi = 3.14159265f;
}

void SoSphere::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const int columns = SolidBuilder::facesAround(state);
    const int rows = columns / 2;
    const float size = radius.getValue();
    SolidBuilder builder(state, geometry);
    builder.addGrid(0, columns, rows, [&](int column, int row) {
        const float s = static_cast<float>(column) / static_cast<float>(columns);
        const float t = static_cast<float>(row) / static_cast<float>(rows);
        // The seam of a texture is at the back. Both its ends, and each pole, must be one point to the last bit.
        const float around = 2 * Pi * static_cast<float>(column % columns) / static_cast<float>(columns) + Pi;
        const bool isPole = row == 0 || row == rows;
        const float ring = isPole ? 0 : std::sin(Pi * t);
        const SbVec3f normal(std::sin(around) * ring, isPole ? (row == 0 ? -1.0f : 1.0f) : -std::cos(Pi * t),
                             std::cos(around) * ring);
        return SolidBuilder::Corner{normal * size, normal, SbVec3f(s, t, 0)};
    });
    geometry.triangleParts.clear();
}

SbBox3f SoSphere::computeBoundingBox(const SoState&) const
{
    const float size = std::fabs(radius.getValue());
    return SbBox3f(SbVec3f(-size, -size, -size), SbVec3f(size, size, size));
}
