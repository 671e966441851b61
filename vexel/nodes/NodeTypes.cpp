#include <vexel/nodes/detail/NodeTypes.h>

#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoUnknownNode.h>

namespace {

template <class... Nodes>
void registerAll()
{
    (Nodes::getClassTypeId(), ...);
}

} // namespace

// One line for each family; a class that is missing here can be written, but not read.
void registerNodeTypes()
{
    registerAll<SoGroup, SoSeparator>();
    registerAll<SoUnknownNode>();
}
