#include <vexel/nodes/SoText3.h>

#include <vexel/base/SbVec3f.h>
#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/detail/OutlineFiller.h>
#include <vexel/nodes/detail/TextOutline.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {
constexpr float Depth = 1;
}

void SoText3::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const TextOutline text(state, string);
    const float size = state->fontSize;
    const bool hasPartMaterials = state->materialBinding == SoMaterialBinding::PER_PART ||
                                  state->materialBinding == SoMaterialBinding::PER_PART_INDEXED;
    const auto endPart = [&](std::uint32_t part) {
        if (hasPartMaterials)
            geometry.materialIndices.resize(geometry.points.size(), part);
    };
    float top = 0;
    for (const TextOutline::Line& line : text.lines()) {
        const float left = justification.getValue() == RIGHT    ? -line.width
                           : justification.getValue() == CENTER ? -line.width / 2
                                                                : 0;
        OutlineFiller filler(geometry, [&](float x, float y, float depth) {
            return SbVec3f((left + x) * size, (top + y) * size, -depth);
        });
        if ((parts.getValue() & FRONT) != 0)
            filler.addArea(line.path, 0, SbVec3f(0, 0, 1), 0);
        endPart(0);
        if ((parts.getValue() & SIDES) != 0)
            filler.addWalls(line.path, Depth, 1);
        endPart(1);
        if ((parts.getValue() & BACK) != 0)
            filler.addArea(line.path, Depth, SbVec3f(0, 0, -1), 2);
        endPart(2);
        top -= spacing.getValue();
    }
}
