#include <vexel/actions/detail/SceneMarks.h>

#include <algorithm>
#include <unordered_set>

#include <vexel/actions/detail/ChangeStamps.h>
#include <vexel/fields/SoField.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoShape.h>

namespace vexel {

namespace {

using Dirt = SceneScope::Dirt;

SoNode* asNode(SoFieldContainer* container)
{
    const bool isNode = container && container->isOfType(SoNode::getClassTypeId());
    return isNode ? static_cast<SoNode*>(container) : nullptr;
}

template <class Visit>
void forEachParent(const SoNode& node, Visit&& visit)
{
    node.getAuditors().forEach([&](void* auditor, SoAuditorType type) {
        SoNode* parent = nullptr;
        if (type == SoAuditorType::Container)
            parent = asNode(static_cast<SoFieldContainer*>(auditor));
        else if (type == SoAuditorType::Field)
            parent = asNode(static_cast<SoField*>(auditor)->getContainer());
        if (parent)
            visit(*parent);
    });
}

} // namespace

void markScope(SceneScope& scope, Dirt dirt)
{
    scope.dirt = std::max(scope.dirt, dirt);
    for (SceneScope* above = scope.parent; above && above->dirt == Dirt::None; above = above->parent)
        above->dirt = Dirt::Below;
}

bool markPlaces(SceneTree& tree, SoNode& node, Dirt dirt, ChangeStamps& stamps)
{
    bool isKnown = false;
    std::vector<std::pair<SoNode*, Dirt>> open{{&node, dirt}};
    std::unordered_set<const SoNode*> seen;
    while (!open.empty()) {
        auto [next, how] = open.back();
        open.pop_back();
        if (SceneScope* place = tree.firstPlace(next->getNodeId())) {
            isKnown = true;
            for (; place; place = place->nextTwin)
                markScope(*place, how);
            continue;
        }
        // Plain groups and shapes pass nothing on but what was said of the change.
        const bool isShape = next->isOfType(SoShape::getClassTypeId());
        if (!isShape && next != &node && next->getTypeId() != SoGroup::getClassTypeId())
            how = Dirt::Deep;
        if (isShape)
            stamps.touch(next->getNodeId());
        forEachParent(*next, [&, how = how](SoNode& parent) {
            if (seen.insert(&parent).second)
                open.emplace_back(&parent, how);
        });
    }
    return isKnown;
}

} // namespace vexel
