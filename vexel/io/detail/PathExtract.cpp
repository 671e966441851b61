#include <vexel/io/detail/PathExtract.h>

#include <algorithm>
#include <unordered_set>

#include <vexel/base/SoPath.h>
#include <vexel/io/detail/HeldObjects.h>
#include <vexel/nodes/SoLOD.h>
#include <vexel/nodes/SoLevelOfDetail.h>
#include <vexel/nodes/SoSwitch.h>

namespace {

using Containers = std::unordered_set<const SoFieldContainer*>;

// Groups that choose a child by its place would choose another one if some were missing.
bool choosesByPlace(const SoNode& node)
{
    if (node.isOfType(SoSwitch::getClassTypeId())) {
        const SoSFInt32& choice = static_cast<const SoSwitch&>(node).whichChild;
        return choice.isConnected() || choice.getValue() >= 0 || choice.getValue() == SO_SWITCH_INHERIT;
    }
    return node.isOfType(SoLOD::getClassTypeId()) || node.isOfType(SoLevelOfDetail::getClassTypeId());
}

/** Finds what is written as a whole besides the groups of a way. */
class WholeObjects {
public:
    explicit WholeObjects(const Containers& way) : m_way(way) {}

    bool contains(const SoFieldContainer& container) const { return m_found.count(&container) > 0; }

    void add(const SoFieldContainer& container)
    {
        if (!m_found.insert(&container).second)
            return;
        addFields(container);
        m_everything.forEachChild(container, [this](const SoNode& child) { add(child); });
    }
    void addFields(const SoFieldContainer& container)
    {
        forEachHeldInFields(
            container, [this](const SoFieldContainer& held) { add(held); },
            [this](const SoFieldContainer& source) {
                // A connection needs the fields of its source only, which a cut group has.
                if (m_way.count(&source) == 0)
                    add(source);
            });
    }

private:
    const Containers& m_way;
    const PathExtract m_everything;
    Containers m_found;
};

} // namespace

PathExtract::PathExtract(const SoPath& path) : m_path(&path)
{
    const int numSteps = static_cast<int>(indicesOf(path).size());
    Containers way;
    int end = 0;
    while (end < numSteps && path.getNode(end)->hasFileChildren())
        way.insert(path.getNode(end++));

    WholeObjects whole(way);
    for (int i = 0; i < end; ++i) {
        const SoNode& node = *path.getNode(i);
        whole.addFields(node);
        const SoChildList& children = *node.getChildren();
        const int next = path.getIndex(i + 1);
        const bool keepsAll = choosesByPlace(node);
        std::vector<const SoNode*> kept;
        for (int place = 0; place < (keepsAll ? children.getLength() : next); ++place) {
            if (place == next || !(keepsAll || children[place]->affectsState()))
                continue;
            whole.add(*children[place]);
            kept.push_back(children[place]);
        }
        kept.push_back(children[next]);
        if (!keepsAll)
            m_cut.emplace(&node, std::move(kept));
    }
    whole.add(*path.getNode(end));
    for (const SoFieldContainer* container : way) {
        if (whole.contains(*container))
            m_cut.erase(container);
    }
}

std::vector<int> PathExtract::indicesOf(const SoPath& path) const
{
    // A path that is written for itself ends at the first kit, whose inner graph is made anew when it is read.
    const int length = m_path == &path ? path.getLength() : path.getFullLength();
    std::vector<int> indices;
    for (int i = 1; i < length && path.getIndex(i) >= 0; ++i) {
        const auto cut = m_path == &path ? m_cut.find(path.getNode(i - 1)) : m_cut.end();
        indices.push_back(cut == m_cut.end() ? path.getIndex(i) : static_cast<int>(cut->second.size()) - 1);
    }
    return indices;
}
