#include <vexel/nodes/SoImage.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbColor.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoLightModel.h>
#include <vexel/nodes/detail/ImageFile.h>
#include <vexel/nodes/detail/ScreenFrame.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoImage::doAction(SoAction& action)
{
    static const SbColor White(1, 1, 1);
    action.state().push();
    SoStateValues& values = *action.state();
    values.textures = {};
    values.textures[0].texture = image.isEmpty() ? nullptr : this;
    values.lightModel = SoLightModel::BASE_COLOR;
    values.diffuseColor = {&White, 1, this};
    values.packedColor = {};
    SoShape::doAction(action);
    action.state().pop();
}

void SoImage::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    if (image.isEmpty())
        return;
    const ScreenFrame frame(state);
    const auto sizeX = static_cast<float>(width.getValue() < 0 ? image.getSize()[0] : width.getValue());
    const auto sizeY = static_cast<float>(height.getValue() < 0 ? image.getSize()[1] : height.getValue());
    const float left = -sizeX * static_cast<float>(horAlignment.getValue()) / 2;
    const float bottom = -sizeY * static_cast<float>(vertAlignment.getValue()) / 2;
    for (int corner = 0; corner < 4; ++corner) {
        const float s = corner == 1 || corner == 2 ? 1 : 0;
        const float t = corner >= 2 ? 1 : 0;
        geometry.points.push_back(frame.at(left + s * sizeX, bottom + t * sizeY));
        geometry.normals.push_back(frame.normal());
        geometry.textureCoordinates.push_back(SbVec3f(s, t, 0));
    }
    geometry.triangles = {0, 1, 2, 0, 2, 3};
}

void SoImage::readFinished(SoInput& in)
{
    loadImageBeside(in, filename, image);
}

void SoImage::notify(SoNotList& list)
{
    if (list.field == &filename && isNotifyEnabled())
        loadImageFile(filename.getValue(), image);
    SoShape::notify(list);
}
