#include <vexel/io/detail/NewContainer.h>

#include <string>

#include <vexel/base/SbName.h>
#include <vexel/io/detail/KeptObjects.h>
#include <vexel/nodes/SoUnknownNode.h>

NewContainer::NewContainer(SoType type, std::string_view typeName, std::string_view sceneName, KeptObjects& kept)
{
    if (isKnown(type)) {
        container = static_cast<SoFieldContainer*>(type.createInstance());
    } else {
        container = unknown = new SoUnknownNode;
        unknown->setNodeTypeName(std::string(typeName));
    }
    kept.add(container);
    // What follows a plus sign only keeps equal names apart within a file.
    const std::string_view plainName = sceneName.substr(0, sceneName.find('+'));
    if (!plainName.empty())
        container->setName(SbName(plainName));
}

bool NewContainer::isKnown(SoType type)
{
    return type.isDerivedFrom(SoFieldContainer::getClassTypeId()) && type.canCreateInstance() &&
           type != SoUnknownNode::getClassTypeId();
}
