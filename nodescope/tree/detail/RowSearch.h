#pragma once

#include "GraphSearch.h"
#include "KeyMatcher.h"

#include <vector>

class SoNodescopeTreeView;
class SoTreeViewItem;

/**
 * Looks for a row in the order of the tree, hidden and collapsed rows included.
 *
 * Where rows are made on demand, rows are made only on the way to a match, so that the search ends soon however many
 * rows there could be.
 */
class RowSearch {
public:
    RowSearch(SoNodescopeTreeView& view, const KeyMatcher& matcher, bool isBackward)
        : m_view(view), m_matcher(matcher), m_graph(matcher), m_isBackward(isBackward)
    {
    }

    /** The first match behind the current row, going on at the other end; the current row comes last. Null for none. */
    SoTreeViewItem* find();

private:
    void standOn(SoTreeViewItem* row);
    /** Stands on the row that comes first in the direction of the search. */
    void standOnFirst();
    bool step();
    bool stepForward();
    bool stepBackward();
    void descendToLast();
    SoTreeViewItem* sibling(int place) const;
    int numChildrenOfInterest(SoTreeViewItem& row);

    SoNodescopeTreeView& m_view;
    const KeyMatcher& m_matcher;
    GraphSearch m_graph;
    bool m_isBackward;
    SoTreeViewItem* m_row = nullptr;
    std::vector<int> m_places; ///< of the row and those above it among their siblings, top-level row first
};
