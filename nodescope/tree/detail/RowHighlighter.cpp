#include "RowHighlighter.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoSelection.h>

RowHighlighter::~RowHighlighter()
{
    setSelection(nullptr);
}

void RowHighlighter::setSelection(SoSelection* selection)
{
    if (selection)
        selection->ref();
    if (m_selection)
        m_selection->unref();
    m_selection = selection;
}

SoPath* RowHighlighter::pathTo(const SoTreeViewItem& row) const
{
    auto* path = new SoPath(m_selection);
    path->ref();
    const SoNode* parent = m_selection;
    for (const SoTreeViewItem* step : row.ancestorPath()) {
        const SoChildList* children = parent->getChildren();
        const int index = children && !step->fromField() ? children->find(step->node(), step->storedIndex())
                          : children                     ? children->find(step->node())
                                                         : -1;
        if (index < 0 || !path->append(index)) {
            path->unref();
            return nullptr;
        }
        parent = step->node();
    }
    path->unrefNoDelete();
    return path;
}

void RowHighlighter::highlight(const SoTreeViewItem& row)
{
    if (!m_selection || !m_isEnabled)
        return;
    SoPath* path = pathTo(row);
    if (!path)
        return;
    path->ref();
    m_selection->deselectAll();
    m_selection->select(path);
    path->unref();
}

SoTreeViewItem* RowHighlighter::rowAt(SoNodescopeTreeView& view, const SoPath& path, int firstNode)
{
    SoTreeViewItem* row = nullptr;
    for (int i = 0; !row && firstNode < path.getFullLength() && i < view.topLevelItemCount(); ++i) {
        auto* top = static_cast<SoTreeViewItem*>(view.topLevelItem(i));
        if (top->node() == path.getNode(firstNode))
            row = top;
    }
    for (int i = firstNode + 1; row && i < path.getFullLength(); ++i) {
        view.makePendingChildren(row);
        const SoNode* node = path.getNode(i);
        // The row at the child's own place first; rows of fields stand elsewhere.
        SoTreeViewItem* next = row->childRow(path.getIndex(i));
        for (int place = 0; (!next || next->node() != node) && place < row->childCount(); ++place)
            next = row->childRow(place);
        if (!next || next->node() != node)
            return row;
        row = next;
    }
    return row;
}
