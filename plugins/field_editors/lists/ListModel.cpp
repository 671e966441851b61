#include "ListModel.h"

#include "ListColumns.h"
#include "ListEdits.h"

#include <plugins/field_editors/edit/FieldBinding.h>

#include <algorithm>

ListModel::ListModel(FieldBinding& binding, const ListColumns& columns, QObject* parent)
    : QAbstractTableModel(parent), m_binding(binding), m_columns(columns), m_headers(columns.headers())
{
    connect(&binding, &FieldBinding::fieldChanged, this, &ListModel::takeField);
    connect(&binding, &FieldBinding::valueChanged, this, &ListModel::takeChange);
}

const SoMField* ListModel::list() const
{
    return static_cast<const SoMField*>(m_binding.field());
}

QString ListModel::problemOf(const QModelIndex& cell, const QString& text) const
{
    QString problem;
    if (list() && cell.row() < list()->getNum())
        ListEdits::rowWith(*list(), m_columns, cell.row(), cell.column(), text, problem);
    return problem;
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

int ListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_headers.size();
}

QVariant ListModel::data(const QModelIndex& cell, int role) const
{
    if (!list() || cell.row() >= list()->getNum())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_columns.text(*list(), cell.row(), cell.column());
    case Qt::DecorationRole:
        if (cell.column() == 0) {
            if (const std::optional<QColor> color = m_columns.color(*list(), cell.row()))
                return *color;
        }
        return {};
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (m_columns.areNumbers() ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

bool ListModel::setData(const QModelIndex& cell, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !list() || cell.row() >= list()->getNum())
        return false;
    if (value.toString() == m_columns.text(*list(), cell.row(), cell.column()))
        return true;
    QString problem;
    auto row = ListEdits::rowWith(*list(), m_columns, cell.row(), cell.column(), value.toString(), problem);
    emit refused(problem);
    if (!row)
        return false;
    m_binding.replaceValues(cell.row(), 1, std::move(row));
    return true;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? QVariant(m_headers.value(section)) : QVariant(section);
}

Qt::ItemFlags ListModel::flags(const QModelIndex& cell) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(cell);
    return m_binding.isEditable() ? flags | Qt::ItemIsEditable : flags;
}

void ListModel::takeField()
{
    beginResetModel();
    m_rowCount = list() ? list()->getNum() : 0;
    endResetModel();
}

void ListModel::takeChange()
{
    const int num = list() ? list()->getNum() : 0;
    if (num > m_rowCount) {
        beginInsertRows({}, m_rowCount, num - 1);
        m_rowCount = num;
        endInsertRows();
    } else if (num < m_rowCount) {
        beginRemoveRows({}, num, m_rowCount - 1);
        m_rowCount = num;
        endRemoveRows();
    }
    if (m_rowCount > 0)
        emit dataChanged(index(0, 0), index(m_rowCount - 1, columnCount() - 1));
}
