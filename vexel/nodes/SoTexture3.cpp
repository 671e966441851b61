#include <vexel/nodes/SoTexture3.h>

#include <vector>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoReadError.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/detail/ImageFile.h>
#include <vexel/state/SoState.h>

void SoTexture3::doAction(SoAction& action)
{
    SoState& state = action.state();
    if (state.mayChange(SO_OVERRIDE_TEXTURE, isOverride()))
        state->textures[static_cast<std::size_t>(state->textureUnit)].texture = images.isEmpty() ? nullptr : this;
}

void SoTexture3::loadSlices(const SoInput* in)
{
    SoSFImage first;
    std::vector<std::uint8_t> bytes;
    for (int i = 0; i < filenames.getNum(); ++i) {
        const SbString found = in ? in->findFile(filenames[i]) : SbString();
        SoSFImage slice;
        loadImageFile(found.isEmpty() ? filenames[i] : found, slice);
        if (i == 0)
            first.copyFrom(slice);
        if (slice.isEmpty() || slice.getSize() != first.getSize() ||
            slice.getNumComponents() != first.getNumComponents()) {
            SoReadError::post(filenames[i], "the slices of a volume texture must all be pictures of one size and kind");
            return;
        }
        bytes.insert(bytes.end(), slice.getBytes().begin(), slice.getBytes().end());
    }
    images.setValue(SbVec3i32(first.getSize()[0], first.getSize()[1], filenames.getNum()), first.getNumComponents(),
                    bytes.data());
    images.setDefault(true);
}

void SoTexture3::readFinished(SoInput& in)
{
    if (filenames.getNum() > 0 && images.isDefault())
        loadSlices(&in);
}

void SoTexture3::notify(SoNotList& list)
{
    if (list.field == &filenames && isNotifyEnabled())
        loadSlices(nullptr);
    SoNode::notify(list);
}
