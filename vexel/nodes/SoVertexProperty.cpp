#include <vexel/nodes/SoVertexProperty.h>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/detail/StateValues.h>
#include <vexel/state/SoState.h>

namespace {

template <class Field>
bool counts(const Field& field)
{
    return !field.isIgnored() && field.getNum() > 0;
}

} // namespace

void SoVertexProperty::doAction(SoAction& action)
{
    SoState& state = action.state();
    SoStateValues& values = *state;
    if (counts(vertex) && state.mayChange(SO_OVERRIDE_COORDINATES, isOverride())) {
        values.coordinates3 = stateList(vertex, *this);
        values.coordinates4 = {};
    }
    if (counts(normal) && state.mayChange(SO_OVERRIDE_NORMALS, isOverride())) {
        values.normals = stateList(normal, *this);
        applyValue(state, normalBinding, *this, SO_OVERRIDE_NORMAL_BINDING, values.normalBinding);
    }
    if ((counts(texCoord3) || counts(texCoord)) && state.mayChange(SO_OVERRIDE_TEXTURE_COORDINATES, isOverride())) {
        values.textureCoordinates2 = {};
        values.textureCoordinates3 = {};
        if (counts(texCoord3))
            values.textureCoordinates3 = stateList(texCoord3, *this);
        else
            values.textureCoordinates2 = stateList(texCoord, *this);
        values.textures[static_cast<std::size_t>(values.textureUnit)].function = nullptr;
        applyValue(state, textureBinding, *this, SO_OVERRIDE_TEXTURE_BINDING, values.textureCoordinateBinding);
    }
    if (counts(orderedRGBA) && state.mayChange(SO_OVERRIDE_DIFFUSE, isOverride())) {
        values.packedColor = stateList(orderedRGBA, *this);
        applyValue(state, materialBinding, *this, SO_OVERRIDE_MATERIAL_BINDING, values.materialBinding);
    }
}
