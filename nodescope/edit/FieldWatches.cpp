#include "FieldWatches.h"

#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoFieldWatch.h>
#include <nodescope/panels/SoNodeOverview.h>
#include <nodescope/panels/SoNodeOverviewList.h>
#include <nodescope/panels/SoNodescopeEdition.h>
#include <nodescope/panels/SoTabNodeOverview.h>

namespace {

QString key(const QTreeWidgetItem* entry)
{
    return QString::number(reinterpret_cast<quintptr>(entry));
}

} // namespace

void FieldWatches::setEdition(SoNodescopeEdition* edition)
{
    if (m_edition)
        watch().model()->disconnect(this);
    m_treeRows.clear();
    m_edition = edition;
    if (!m_edition)
        return;
    // Entries also go by themselves, with their nodes.
    const QAbstractItemModel* const model = watch().model();
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) { forget(first, last); });
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_treeRows.clear(); });
}

SoFieldWatch& FieldWatches::watch() const
{
    return m_edition->fieldWatch();
}

void FieldWatches::forget(int first, int last)
{
    for (int i = first; i <= last; ++i)
        m_treeRows.remove(key(watch().topLevelItem(i)));
}

void FieldWatches::add(SoFieldItem* row)
{
    if (!m_edition)
        return;
    const SoNodeOverview& page = *m_edition->overview().currentPage();
    if (!row)
        row = page.list().currentRow();
    if (const SoFieldItem* const entry = row ? watch().addEntry(*row) : nullptr)
        m_treeRows.insert(key(entry), page.treeRow());
}

void FieldWatches::add(SoFieldItem* row, const QPoint& place)
{
    if (m_edition && watch().rect().contains(watch().mapFromGlobal(place)))
        add(row);
}

void FieldWatches::remove(QTreeWidgetItem* entry)
{
    if (!entry && m_edition)
        entry = watch().currentItem();
    if (entry)
        watch().removeRow(static_cast<SoFieldItem*>(entry));
}

QPersistentModelIndex FieldWatches::treeRow(const QTreeWidgetItem* entry) const
{
    return m_treeRows.value(key(entry));
}
