#include <vexel/nodes/SoTexture2.h>

#include <vexel/actions/SoAction.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/detail/ImageFile.h>
#include <vexel/state/SoState.h>

void SoTexture2::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (state.mayChange(SO_OVERRIDE_TEXTURE, isOverride()))
        state->textures[static_cast<std::size_t>(state->textureUnit)].texture = image.isEmpty() ? nullptr : this;
}

void SoTexture2::readFinished(SoInput& in)
{
    loadImageBeside(in, filename, image);
}

void SoTexture2::notify(SoNotList& list)
{
    // While a scene is read the name comes before the place is known that it is relative to.
    if (list.field == &filename && isNotifyEnabled())
        loadImageFile(filename.getValue(), image);
    SoNode::notify(list);
}
