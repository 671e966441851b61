#include <vexel/nodes/SoMaterial.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

void SoMaterial::doAction(SoAction& action)
{
    SoState& state = action.state();
    applyList(state, ambientColor, *this, SO_OVERRIDE_AMBIENT, state->ambientColor);
    applyList(state, specularColor, *this, SO_OVERRIDE_SPECULAR, state->specularColor);
    applyList(state, emissiveColor, *this, SO_OVERRIDE_EMISSIVE, state->emissiveColor);
    applyList(state, shininess, *this, SO_OVERRIDE_SHININESS, state->shininess);
    applyList(state, transparency, *this, SO_OVERRIDE_TRANSPARENCY, state->transparency);
    if (!diffuseColor.isIgnored() && diffuseColor.getNum() > 0 && state.mayChange(SO_OVERRIDE_DIFFUSE, isOverride())) {
        state->diffuseColor = stateList(diffuseColor, *this);
        // Packed colours of a node before would hide the new ones.
        state->packedColor = {};
    }
}
