#include <vexel/fields/detail/ReferenceText.h>

#include <vexel/base/SoPath.h>
#include <vexel/engines/SoEngine.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/SoMFEngine.h>
#include <vexel/fields/SoMFPath.h>
#include <vexel/fields/SoSFEngine.h>
#include <vexel/fields/SoSFPath.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/SceneReader.h>
#include <vexel/io/detail/SceneWriter.h>
#include <vexel/nodes/SoNode.h>

bool readReference(SoInput& in, SoType fieldType, SoBase*& object)
{
    if (fieldType == SoSFPath::getClassTypeId() || fieldType == SoMFPath::getClassTypeId()) {
        SoPath* path = nullptr;
        const bool good = in.sceneReader().readPath(path);
        object = path;
        return good;
    }
    const bool isEngine = fieldType == SoSFEngine::getClassTypeId() || fieldType == SoMFEngine::getClassTypeId();
    SoFieldContainer* container = nullptr;
    const bool good =
        in.sceneReader().readContainer(isEngine ? SoEngine::getClassTypeId() : SoNode::getClassTypeId(), container);
    object = container;
    return good;
}

void writeReference(SoOutput& out, SoBase* object)
{
    if (object && object->isOfType(SoPath::getClassTypeId()))
        out.sceneWriter().writePath(static_cast<SoPath*>(object));
    else
        out.sceneWriter().writeContainer(static_cast<SoFieldContainer*>(object));
}
