#include <vexel/nodes/SoBumpMap.h>

#include <vexel/actions/SoAction.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/detail/ImageFile.h>

void SoBumpMap::doAction(SoAction& action)
{
    action.state()->bumpMap = image.isEmpty() ? nullptr : this;
}

void SoBumpMap::readFinished(SoInput& in)
{
    loadImageBeside(in, filename, image);
}

void SoBumpMap::notify(SoNotList& list)
{
    if (list.field == &filename && isNotifyEnabled())
        loadImageFile(filename.getValue(), image);
    SoNode::notify(list);
}
