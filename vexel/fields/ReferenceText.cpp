#include <vexel/fields/detail/ReferenceText.h>

#include <utility>

#include <vexel/base/SoPath.h>
#include <vexel/engines/SoEngine.h>
#include <vexel/fields/SoBufferObject.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/SoMFEngine.h>
#include <vexel/fields/SoMFInstanceParameter.h>
#include <vexel/fields/SoMFPath.h>
#include <vexel/fields/SoMFUniformShaderParameter.h>
#include <vexel/fields/SoSFBufferObject.h>
#include <vexel/fields/SoSFEngine.h>
#include <vexel/fields/SoSFFieldContainer.h>
#include <vexel/fields/SoSFPath.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/SceneReader.h>
#include <vexel/io/detail/SceneWriter.h>
#include <vexel/nodes/SoInstanceParameter.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/nodes/SoUniformShaderParameter.h>

namespace {

// What a field of that type may refer to.
SoType familyOf(SoType fieldType)
{
    static const std::pair<SoType, SoType> Families[] = {
        {SoSFEngine::getClassTypeId(), SoEngine::getClassTypeId()},
        {SoMFEngine::getClassTypeId(), SoEngine::getClassTypeId()},
        {SoSFBufferObject::getClassTypeId(), SoBufferObject::getClassTypeId()},
        {SoSFFieldContainer::getClassTypeId(), SoFieldContainer::getClassTypeId()},
        {SoMFUniformShaderParameter::getClassTypeId(), SoUniformShaderParameter::getClassTypeId()},
        {SoMFInstanceParameter::getClassTypeId(), SoInstanceParameter::getClassTypeId()}};
    for (const auto& [field, family] : Families) {
        if (fieldType == field)
            return family;
    }
    return SoNode::getClassTypeId();
}

} // namespace

bool readReference(SoInput& in, SoType fieldType, SoBase*& object)
{
    if (fieldType == SoSFPath::getClassTypeId() || fieldType == SoMFPath::getClassTypeId()) {
        SoPath* path = nullptr;
        const bool good = in.sceneReader().readPath(path);
        object = path;
        return good;
    }
    SoFieldContainer* container = nullptr;
    const bool good = in.sceneReader().readContainer(familyOf(fieldType), container);
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
