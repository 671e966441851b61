#include <vexel/nodes/SoTexture2Transform.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbRotation.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/state/SoState.h>

namespace {

SbVec3f withDepth(const SbVec2f& vector, float depth)
{
    return SbVec3f(vector[0], vector[1], depth);
}

} // namespace

void SoTexture2Transform::doAction(SoAction& action)
{
    SoState& state = action.state();
    const auto used = [](const auto& field, auto neutral) { return field.isIgnored() ? neutral : field.getValue(); };
    SbMatrix matrix;
    matrix.setTransform(
        withDepth(used(translation, SbVec2f(0, 0)), 0), SbRotation(SbVec3f(0, 0, 1), used(rotation, 0.0f)),
        withDepth(used(scaleFactor, SbVec2f(1, 1)), 1), SbRotation(), withDepth(used(center, SbVec2f(0, 0)), 0));
    state->textures[static_cast<std::size_t>(state->textureUnit)].matrix.multLeft(matrix);
}
