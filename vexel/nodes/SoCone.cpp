#include <vexel/nodes/SoCone.h>

#include <cmath>

#include <vexel/base/SbBox3f.h>
#include <vexel/nodes/detail/SolidBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {
constexpr float Pi = 3.14159265f;
}

void SoCone::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const int faces = SolidBuilder::facesAround(state);
    const float half = height.getValue() / 2;
    const float size = bottomRadius.getValue();
    SolidBuilder builder(state, geometry);
    if (hasPart(SIDES)) {
        builder.addGrid(0, faces, 1, [&](int column, int row) {
            const float s = static_cast<float>(column) / static_cast<float>(faces);
            const float around = 2 * Pi * static_cast<float>(column % faces) / static_cast<float>(faces) + Pi;
            const SbVec3f out(std::sin(around), 0, std::cos(around));
            SbVec3f normal(out[0] * 2 * half, size, out[2] * 2 * half);
            normal.normalize();
            const float width = row == 1 ? 0 : size;
            return SolidBuilder::Corner{SbVec3f(out[0] * width, row == 1 ? half : -half, out[2] * width), normal,
                                        SbVec3f(s, static_cast<float>(row), 0)};
        });
    }
    if (hasPart(BOTTOM))
        builder.addDisc(1, faces, size, -half, false);
}

SbBox3f SoCone::computeBoundingBox(const SoState&) const
{
    const float size = std::fabs(bottomRadius.getValue());
    const float half = height.getValue() / 2;
    SbBox3f box;
    if (hasPart(SIDES) || hasPart(BOTTOM)) {
        box.extendBy(SbVec3f(-size, -half, -size));
        box.extendBy(SbVec3f(size, -half, size));
    }
    if (hasPart(SIDES))
        box.extendBy(SbVec3f(0, half, 0));
    return box;
}
