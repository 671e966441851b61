#include "FieldWatches.h"

#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoFieldWatch.h>

namespace {

QString key(const QTreeWidgetItem* entry)
{
    return QString::number(reinterpret_cast<quintptr>(entry));
}

} // namespace

void FieldWatches::setWatch(SoFieldWatch* watch)
{
    if (m_watch)
        m_watch->model()->disconnect(this);
    m_treeRows.clear();
    m_watch = watch;
    if (!m_watch)
        return;
    // Entries also go by themselves, with their nodes.
    const QAbstractItemModel* const model = m_watch->model();
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) { forget(first, last); });
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_treeRows.clear(); });
}

void FieldWatches::forget(int first, int last)
{
    for (int i = first; i <= last; ++i)
        m_treeRows.remove(key(m_watch->topLevelItem(i)));
}

void FieldWatches::add(const SoFieldItem& row, const QPersistentModelIndex& treeRow)
{
    if (const SoFieldItem* const entry = m_watch ? m_watch->addEntry(row) : nullptr)
        m_treeRows.insert(key(entry), treeRow);
}

void FieldWatches::remove(QTreeWidgetItem* entry)
{
    if (!entry && m_watch)
        entry = m_watch->currentItem();
    if (entry)
        m_watch->removeRow(static_cast<SoFieldItem*>(entry));
}

QPersistentModelIndex FieldWatches::treeRow(const QTreeWidgetItem* entry) const
{
    return m_treeRows.value(key(entry));
}
