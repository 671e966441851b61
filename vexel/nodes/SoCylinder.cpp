#include <vexel/nodes/SoCylinder.h>

#include <cmath>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/detail/SolidBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {
constexpr float Pi = 3.14159265f;
}

void SoCylinder::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const int faces = SolidBuilder::facesAround(state);
    const float half = height.getValue() / 2;
    const float size = radius.getValue();
    SolidBuilder builder(state, geometry);
    if (hasPart(SIDES)) {
        builder.addGrid(0, faces, 1, [&](int column, int row) {
            const float s = static_cast<float>(column) / static_cast<float>(faces);
            const float around = 2 * Pi * static_cast<float>(column % faces) / static_cast<float>(faces) + Pi;
            const SbVec3f normal(std::sin(around), 0, std::cos(around));
            return SolidBuilder::Corner{SbVec3f(normal[0] * size, row == 1 ? half : -half, normal[2] * size), normal,
                                        SbVec3f(s, static_cast<float>(row), 0)};
        });
    }
    if (hasPart(TOP))
        builder.addDisc(1, faces, size, half, true);
    if (hasPart(BOTTOM))
        builder.addDisc(2, faces, size, -half, false);
}

SbBox3f SoCylinder::computeBoundingBox(const SoState&) const
{
    const float size = std::fabs(radius.getValue());
    const float half = std::fabs(height.getValue() / 2);
    SbBox3f box;
    if (hasPart(SIDES) || hasPart(TOP))
        box.extendBy(SbBox3f(SbVec3f(-size, half, -size), SbVec3f(size, half, size)));
    if (hasPart(SIDES) || hasPart(BOTTOM))
        box.extendBy(SbBox3f(SbVec3f(-size, -half, -size), SbVec3f(size, -half, size)));
    return box;
}
