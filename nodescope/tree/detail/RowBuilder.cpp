#include "RowBuilder.h"
#include "RowSources.h"

#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/nodekits/SoBaseKit.h>

#include <algorithm>
#include <unordered_map>

namespace {

/** The kit that describes what stands below a node, which another kit may describe itself. */
SoBaseKit* kitBelow(SoNode& node, SoBaseKit* kit)
{
    return node.isOfType(SoBaseKit::getClassTypeId()) ? static_cast<SoBaseKit*>(&node) : kit;
}

bool standsAmong(const SoNode* node, const SoTreeViewItem* row)
{
    for (; row; row = row->parentRow()) {
        if (row->node() == node)
            return true;
    }
    return false;
}

class RowCounter {
public:
    explicit RowCounter(qint64 most) : m_most(most) {}

    qint64 countAll(SoNode& root)
    {
        m_counts.emplace(&root, 1);
        return m_counts[&root] = countBelow(root);
    }

private:
    qint64 count(SoNode& node)
    {
        // A node that only one holds is come to once, and needs no note.
        if (node.getAuditors().size() < 2)
            return countBelow(node);
        const auto [place, isNew] = m_counts.try_emplace(&node, 1);
        return isNew ? m_counts[&node] = countBelow(node) : place->second;
    }

    qint64 countBelow(SoNode& node)
    {
        qint64 rows = 1;
        forEachRowSource(node, [&](SoNode& below, SoField*) {
            if (rows <= m_most)
                rows += count(below);
        });
        return std::min(rows, m_most + 1);
    }

    qint64 m_most;
    // A node that is still being counted stands for one row, as its row below itself will.
    std::unordered_map<const SoNode*, qint64> m_counts;
};

} // namespace

bool RowBuilder::makesAtMost(SoNode& root, int most)
{
    return !hasRowSources(root) || RowCounter(most).countAll(root) <= most;
}

SoTreeViewItem* RowBuilder::build(SoNode& node, SoField* field, SoTreeViewItem* parent) const
{
    SoBaseKit* const kit = parent ? kitBelow(*parent->node(), parent->kit()) : nullptr;
    auto* row = new SoTreeViewItem(&node, field, parent, kit);
    fill(*row, {nullptr, parent, kit});
    return row;
}

void RowBuilder::buildChildren(SoTreeViewItem& row) const
{
    QList<QTreeWidgetItem*> rows;
    forEachRowSource(*row.node(), [&](SoNode& node, SoField* field) { rows.append(build(node, field, &row)); });
    row.appendRows(rows);
}

void RowBuilder::fill(SoTreeViewItem& row, const Place& place) const
{
    // The scene as a whole is held by whoever shows it; that does not make it a shared node.
    const bool isTop = !place.above && !place.aboveInView;
    row.updateReferenceIcon(!isTop);
    // A graph that contains itself would go on for ever.
    if (standsAmong(row.node(), place.above) || standsAmong(row.node(), place.aboveInView))
        return;
    if (m_children == Children::OnDemand) {
        if (hasRowSources(*row.node()))
            row.setPendingChildren(true);
        return;
    }
    const Place below{&row, place.aboveInView, kitBelow(*row.node(), place.kit)};
    forEachRowSource(*row.node(), [&](SoNode& node, SoField* field) {
        auto* child = new SoTreeViewItem(&node, field, &row, below.kit);
        row.insertRow(row.childCount(), child);
        fill(*child, below);
    });
}
