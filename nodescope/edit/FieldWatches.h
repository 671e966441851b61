#pragma once

#include <QHash>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

class QTreeWidgetItem;
class SoFieldItem;
class SoFieldWatch;

/** Adds and removes entries of the field watch, and knows from which row of the tree each was made. Does nothing while
 * there is no field watch. */
class FieldWatches : public QObject {
public:
    explicit FieldWatches(QObject* parent) : QObject(parent) {}

    void setWatch(SoFieldWatch* watch);
    SoFieldWatch* watch() const { return m_watch; }

    /** Watches the field of a row, unless it is watched already or holds nodes. */
    void add(const SoFieldItem& row, const QPersistentModelIndex& treeRow);
    /** Removes an entry, the current one for null. */
    void remove(QTreeWidgetItem* entry);
    /** The row of the tree that belongs to an entry; not valid when that row is gone. */
    QPersistentModelIndex treeRow(const QTreeWidgetItem* entry) const;

private:
    void forget(int first, int last);

    QPointer<SoFieldWatch> m_watch;
    QHash<QString, QPersistentModelIndex> m_treeRows; ///< by the address of the entry
};
