#include "ChildAccess.h"

#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/fields/SoField.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodes/SoChildList.h>

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace {

SoNodeKitListPart* asListPart(const SoNode* node)
{
    return node && node->isOfType(SoNodeKitListPart::getClassTypeId())
               ? static_cast<SoNodeKitListPart*>(const_cast<SoNode*>(node))
               : nullptr;
}

/** A part with other parts below it: the kit puts them there, and takes out what is put beside them. */
bool isArrangedByKit(const SoTreeViewItem& row)
{
    if (!row.hasPartRecord())
        return false;
    const int number = row.partNumber();
    return number >= 0 && !row.kit()->getNodekitCatalog().isLeaf(number);
}

bool hasOwnChildren(const SoTreeViewItem& row)
{
    return row.node()->getChildren() && row.node()->hasFileChildren() && !isArrangedByKit(row);
}

SoNode* parentBehind(void* auditor, SoAuditorType type)
{
    const SoFieldContainer* container = nullptr;
    if (type == SoAuditorType::Container)
        container = static_cast<SoFieldContainer*>(auditor);
    else if (type == SoAuditorType::Field)
        container = static_cast<SoField*>(auditor)->getContainer();
    const bool isNode = container && container->isOfType(SoNode::getClassTypeId());
    return isNode ? static_cast<SoNode*>(const_cast<SoFieldContainer*>(container)) : nullptr;
}

} // namespace

bool ChildAccess::accepts(const SoTreeViewItem* row, const SoNode& child)
{
    if (!row || leadsTo(child, *row->node()))
        return false;
    const SoNodeKitListPart* list = asListPart(row->node());
    if (!list) {
        if (!hasOwnChildren(*row))
            return false;
        list = asListPart(row->parentNode()); // of which the row may be the container
    }
    return !list || list->isChildPermitted(&child);
}

bool ChildAccess::isRemovable(const SoTreeViewItem& row)
{
    return row.parentRow() && !row.fromField() && hasOwnChildren(*row.parentRow());
}

int ChildAccess::count(const SoNode& parent)
{
    const SoNodeKitListPart* list = asListPart(&parent);
    return list ? list->getNumChildren() : parent.getChildren()->getLength();
}

int ChildAccess::find(const SoNode& parent, const SoNode& child, int guess)
{
    const SoNodeKitListPart* list = asListPart(&parent);
    return list ? list->findChild(&child) : parent.getChildren()->find(&child, guess);
}

void ChildAccess::insert(SoNode& parent, SoNode& child, int place)
{
    if (SoNodeKitListPart* list = asListPart(&parent))
        list->insertChild(&child, place);
    else
        parent.getChildren()->insert(&child, place);
}

void ChildAccess::remove(SoNode& parent, int place)
{
    if (SoNodeKitListPart* list = asListPart(&parent))
        list->removeChild(place);
    else
        parent.getChildren()->remove(place);
}

bool ChildAccess::leadsTo(const SoNode& ancestor, SoNode& node)
{
    // There are far fewer nodes above a node than below one, and each is looked at once.
    std::unordered_set<const SoNode*> seen{&node};
    std::vector<const SoNode*> open{&node};
    while (!open.empty()) {
        const SoNode* each = open.back();
        open.pop_back();
        if (each == &ancestor)
            return true;
        const AuditorList& auditors = each->getAuditors();
        for (std::size_t i = 0; i < auditors.size(); ++i) {
            const SoNode* parent = parentBehind(auditors.at(i).auditor, auditors.at(i).type);
            if (parent && seen.insert(parent).second)
                open.push_back(parent);
        }
    }
    return false;
}
