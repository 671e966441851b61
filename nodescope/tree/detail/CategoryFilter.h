#pragma once

#include <nodescope/tree/NodeCategory.h>

class QTreeWidget;
class SoTreeViewItem;

/** Hides the rows whose category the user does not want to see. */
class CategoryFilter {
public:
    explicit CategoryFilter(QTreeWidget* view) : m_view(view) {}

    int mask() const { return m_mask; }
    /** Shows the rows whose category is in the mask; nothing is done when it is the present one. */
    void setMask(int mask);
    /** Goes through all rows again. */
    void apply();
    /** Goes through a row and all below it. */
    void applyTo(SoTreeViewItem* row);

private:
    QTreeWidget* m_view;
    int m_mask = Nsc::All_categories;
};
