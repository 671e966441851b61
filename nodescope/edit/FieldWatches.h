#pragma once

#include <QHash>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

class QTreeWidgetItem;
class SoFieldItem;
class SoFieldWatch;
class SoNodescopeEdition;

/** Adds and removes entries of the field watch, and knows from which row of the tree each was made. Does nothing while
 * there is no field watch. */
class FieldWatches : public QObject {
public:
    explicit FieldWatches(QObject* parent) : QObject(parent) {}

    void setEdition(SoNodescopeEdition* edition);

    /** Watches the field of a row of the node overview, that of its current row for null, unless it is watched already
     * or holds nodes. */
    void add(SoFieldItem* row);
    /** The same for a row that was dropped at a place of the screen; nothing when that is beside the field watch. */
    void add(SoFieldItem* row, const QPoint& place);
    /** Removes an entry, the current one for null. */
    void remove(QTreeWidgetItem* entry);
    /** The row of the tree that belongs to an entry; not valid when that row is gone. */
    QPersistentModelIndex treeRow(const QTreeWidgetItem* entry) const;

private:
    SoFieldWatch& watch() const;
    void forget(int first, int last);

    QPointer<SoNodescopeEdition> m_edition;
    QHash<QString, QPersistentModelIndex> m_treeRows; ///< by the address of the entry
};
