#include <vexel/fields/detail/ReferenceText.h>

#include <vexel/base/SoPath.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/SceneReader.h>
#include <vexel/io/detail/SceneWriter.h>

bool readReference(SoInput& in, SoType family, SoBase*& object)
{
    if (family == SoPath::getClassTypeId()) {
        SoPath* path = nullptr;
        const bool good = in.sceneReader().readPath(path);
        object = path;
        return good;
    }
    SoFieldContainer* container = nullptr;
    const bool good = in.sceneReader().readContainer(family, container);
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
