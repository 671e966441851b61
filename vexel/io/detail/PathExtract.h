#pragma once

#include <unordered_map>
#include <vector>

#include <vexel/fields/SoFieldContainer.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

class SoPath;

/**
 * What of a graph is written: everything, or what belongs to one path. Of the groups on the way down that path these
 * are the next node of the way and the children in front of it that change the state which it sees; below the end of
 * the path, everything. A group that is needed as a whole in some other place, too, is written as a whole.
 */
class PathExtract {
public:
    /** Everything. */
    PathExtract() = default;
    explicit PathExtract(const SoPath& path);

    /** Calls @p visit for each child that is written with @p container. */
    template <class Visit>
    void forEachChild(const SoFieldContainer& container, Visit&& visit) const;
    /** The way of a path among the children that are written; the nodes held in fields are not reached by indices. */
    std::vector<int> indicesOf(const SoPath& path) const;

private:
    const SoPath* m_path = nullptr;
    // The groups that are not written as a whole, and the children that are; the last one is on the way.
    std::unordered_map<const SoFieldContainer*, std::vector<const SoNode*>> m_cut;
};

template <class Visit>
void PathExtract::forEachChild(const SoFieldContainer& container, Visit&& visit) const
{
    if (const auto cut = m_cut.find(&container); cut != m_cut.end()) {
        for (const SoNode* child : cut->second)
            visit(*child);
        return;
    }
    if (!container.isOfType(SoNode::getClassTypeId()))
        return;
    const auto& node = static_cast<const SoNode&>(container);
    if (!node.hasFileChildren())
        return;
    const SoChildList& children = *node.getChildren();
    for (int i = 0; i < children.getLength(); ++i)
        visit(static_cast<const SoNode&>(*children[i]));
}
