#include <vexel/nodes/SoTextureMatrixTransform.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoTextureMatrixTransform::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (!matrix.isIgnored())
        state->textures[static_cast<std::size_t>(state->textureUnit)].matrix.multLeft(matrix.getValue());
}
