#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/tree/RowList.h>

#include <QList>
#include <QString>

#include <unordered_map>

class QTreeWidget;
class SoNode;
class SoTreeViewItem;

/**
 * Answers the rows that show a node.
 *
 * Rows are entered when the registry is asked for the first time: showing a graph costs nothing for it. From then on it
 * is kept up to date.
 */
class NODESCOPE_API NodeRowRegistry {
public:
    explicit NodeRowRegistry(QTreeWidget* view);
    NodeRowRegistry(const NodeRowRegistry&) = delete;
    NodeRowRegistry& operator=(const NodeRowRegistry&) = delete;
    ~NodeRowRegistry();

    /** The rows of a node, those made first in front. */
    QList<SoTreeViewItem*> rows(const SoNode* node);
    /** The rows of the node whose address has this decimal text. */
    QList<SoTreeViewItem*> rows(const QString& key);
    static QString key(const SoNode* node);
    /** The lists of all nodes that have more than one row. */
    QList<const RowList*> sharedNodes();

    /** A row with all below it was put into the view. */
    void enter(SoTreeViewItem* row);
    /** A row with all below it is taken out of the view. */
    void leave(SoTreeViewItem* row);
    /** Forgets everything; to be called before the view is cleared. */
    void clear();

private:
    friend class RowList;

    void enterAll();
    void enterOne(SoTreeViewItem* row);

    QTreeWidget* m_view;
    std::unordered_map<const SoNode*, RowList> m_lists; ///< whose lists stay in place, as rows point to theirs
    bool m_isFilled = false;
};
