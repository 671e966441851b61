#include <vexel/draggers/detail/ManipChild.h>

#include <vexel/base/SbName.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoPath.h>
#include <vexel/base/SoType.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoField.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoNode.h>

namespace {

void copyCommonFields(const SoNode& from, SoNode& to)
{
    to.setName(from.getName());
    for (const SoField* source : from.getFields()) {
        SoField* target = to.getField(source->getName());
        if (!target || target->getTypeId() != source->getTypeId())
            continue;
        if (SoEngineOutput* output = source->getConnectedEngine())
            target->connectFrom(output);
        else if (SoField* master = source->getConnectedField())
            target->connectFrom(master);
        target->copyFrom(*source);
        target->setDefault(source->isDefault());
        target->setIgnored(source->isIgnored());
    }
}

// The kit nearest to the end of the path that has the node as a part.
SoBaseKit* kitOf(const SoPath& path, SbString& part)
{
    const SoNode* tail = path.getNode(path.getFullLength() - 1);
    for (int i = path.getFullLength() - 2; i >= 0; --i) {
        if (!path.getNode(i)->isOfType(SoBaseKit::getClassTypeId()))
            continue;
        auto* kit = static_cast<SoBaseKit*>(path.getNode(i));
        part = kit->getPartString(tail);
        if (!part.isEmpty())
            return kit;
    }
    return nullptr;
}

} // namespace

SoDragger* manipDragger(const SoChildList& children)
{
    return children.getLength() > 0 ? static_cast<SoDragger*>(children[0]) : nullptr;
}

void setManipDragger(SoChildList& children, SoDragger* dragger)
{
    children.assign(dragger ? std::vector<SoNode*>{dragger} : std::vector<SoNode*>());
}

bool replaceTail(SoPath* path, SoType expected, SoNode* node)
{
    const int length = path ? path->getFullLength() : 0;
    SoNode* old = length > 1 ? path->getNode(length - 1) : nullptr;
    SbString part;
    SoBaseKit* kit = old ? kitOf(*path, part) : nullptr;
    const bool isChild = old && path->getNode(length - 2)->isOfType(SoGroup::getClassTypeId());
    // Both are held: the old one is read when it is no part of the graph any more, and the new one may not fit.
    node->ref();
    bool good = old && old != node && old->isOfType(expected) && (kit || isChild);
    if (good) {
        old->ref();
        copyCommonFields(*old, *node);
        if (kit)
            good = kit->setPart(SbName(part), node);
        else
            static_cast<SoGroup*>(path->getNode(length - 2))->replaceChild(path->getIndex(length - 1), node);
        if (good) {
            path->truncate(length - 1);
            path->append(node);
        }
        old->unref();
    }
    node->unrefNoDelete();
    return good;
}
