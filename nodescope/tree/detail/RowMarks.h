#pragma once

#include <vector>

class SoTreeViewItem;

/** What the user did to a row and the rows below it: opened, bookmarked, ignored, made current. */
class RowMarks {
public:
    bool isEmpty() const { return !m_isMarked && m_below.empty(); }
    /** Notes the marks of a row of the view. */
    void take(const SoTreeViewItem& row);
    /** Gives them to a row of the view that stands for the same node. */
    void give(SoTreeViewItem& row) const;

private:
    int m_place = 0;
    bool m_isMarked = false;
    bool m_isExpanded = false;
    bool m_isBookmarked = false;
    bool m_isIgnored = false;
    bool m_isCurrent = false;
    std::vector<RowMarks> m_below;
};
