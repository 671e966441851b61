#include "NodeRowRegistry.h"
#include "SoTreeViewItem.h"

#include <QTreeWidget>

#include <cstdint>

namespace {

template <class Visit>
void forEachRow(SoTreeViewItem* row, Visit&& visit)
{
    visit(row);
    for (int i = 0; i < row->childCount(); ++i)
        forEachRow(row->childRow(i), visit);
}

} // namespace

SoTreeViewItem* RowList::next(const SoTreeViewItem* row)
{
    return row->m_nextInList;
}

SoTreeViewItem* RowList::previous(const SoTreeViewItem* row)
{
    return row->m_previousInList;
}

QList<SoTreeViewItem*> RowList::rows() const
{
    QList<SoTreeViewItem*> all;
    all.reserve(m_size);
    for (SoTreeViewItem* row = m_first; row; row = row->m_nextInList)
        all.append(row);
    return all;
}

void RowList::append(SoTreeViewItem* row)
{
    row->m_list = this;
    row->m_previousInList = m_last;
    row->m_nextInList = nullptr;
    (m_last ? m_last->m_nextInList : m_first) = row;
    m_last = row;
    ++m_size;
}

void RowList::remove(SoTreeViewItem* row)
{
    RowList* list = row->m_list;
    if (!list)
        return;
    (row->m_previousInList ? row->m_previousInList->m_nextInList : list->m_first) = row->m_nextInList;
    (row->m_nextInList ? row->m_nextInList->m_previousInList : list->m_last) = row->m_previousInList;
    row->m_list = nullptr;
    if (--list->m_size == 0)
        list->m_registry->m_lists.erase(list->m_node);
}

NodeRowRegistry::NodeRowRegistry(QTreeWidget* view) : m_view(view) {}

NodeRowRegistry::~NodeRowRegistry()
{
    clear();
}

QString NodeRowRegistry::key(const SoNode* node)
{
    return QString::number(reinterpret_cast<std::uintptr_t>(node));
}

QList<SoTreeViewItem*> NodeRowRegistry::rows(const QString& key)
{
    return rows(reinterpret_cast<const SoNode*>(static_cast<std::uintptr_t>(key.toULongLong())));
}

QList<SoTreeViewItem*> NodeRowRegistry::rows(const SoNode* node)
{
    enterAll();
    const auto found = m_lists.find(node);
    return found == m_lists.end() ? QList<SoTreeViewItem*>() : found->second.rows();
}

QList<const RowList*> NodeRowRegistry::sharedNodes()
{
    enterAll();
    QList<const RowList*> shared;
    for (const auto& [node, list] : m_lists) {
        if (list.size() > 1)
            shared.append(&list);
    }
    return shared;
}

void NodeRowRegistry::enterAll()
{
    if (m_isFilled)
        return;
    m_isFilled = true;
    for (int i = 0; i < m_view->topLevelItemCount(); ++i)
        enter(static_cast<SoTreeViewItem*>(m_view->topLevelItem(i)));
}

void NodeRowRegistry::enterOne(SoTreeViewItem* row)
{
    m_lists.try_emplace(row->node(), this, row->node()).first->second.append(row);
}

void NodeRowRegistry::enter(SoTreeViewItem* row)
{
    if (m_isFilled)
        forEachRow(row, [this](SoTreeViewItem* each) { enterOne(each); });
}

void NodeRowRegistry::leave(SoTreeViewItem* row)
{
    if (m_isFilled)
        forEachRow(row, [](SoTreeViewItem* each) { RowList::remove(each); });
}

void NodeRowRegistry::clear()
{
    if (m_isFilled) {
        for (int i = 0; i < m_view->topLevelItemCount(); ++i)
            leave(static_cast<SoTreeViewItem*>(m_view->topLevelItem(i)));
    }
    m_lists.clear();
    m_isFilled = false;
}
