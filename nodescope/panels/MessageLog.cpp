#include "MessageLog.h"

#include <nodescope/preferences/ReadableColor.h>

#include <QApplication>
#include <QDateTime>
#include <QPalette>
#include <algorithm>

namespace {

const QColor Problem_color(220, 80, 72);

} // namespace

void MessageLog::add(Kind kind, const QString& source, const QString& text)
{
    const std::lock_guard lock(m_mutex);
    if (m_waiting.empty())
        QMetaObject::invokeMethod(this, &MessageLog::takeOver, Qt::QueuedConnection);
    const qint64 time = QDateTime::currentMSecsSinceEpoch();
    if (!text.contains('\n')) { // as nearly all, of which there may be many
        wait({time, kind, source, text});
        return;
    }
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts))
        wait({time, kind, source, line});
}

void MessageLog::add(Kind kind, const QString& message)
{
    const int colon = message.indexOf(QLatin1String(": "));
    add(kind, message.left(std::max(colon, 0)), message.mid(colon < 0 ? 0 : colon + 2));
}

void MessageLog::wait(Line line)
{
    if (m_waiting.size() == std::size_t(Limit))
        m_waiting.pop_front();
    m_waiting.push_back(std::move(line));
}

void MessageLog::takeOver()
{
    std::deque<Line> added;
    {
        const std::lock_guard lock(m_mutex);
        added.swap(m_waiting);
    }
    if (added.empty())
        return;
    const int tooMany = std::min(rowCount(), rowCount() + int(added.size()) - Limit);
    if (tooMany > 0) {
        beginRemoveRows(QModelIndex(), 0, tooMany - 1);
        m_lines.erase(m_lines.begin(), m_lines.begin() + tooMany);
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), rowCount(), rowCount() + int(added.size()) - 1);
    m_lines.insert(m_lines.end(), added.begin(), added.end());
    endInsertRows();
}

void MessageLog::clear()
{
    takeOver();
    beginResetModel();
    m_lines.clear();
    endResetModel();
}

QString MessageLog::lineText(int row) const
{
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells << cellText(m_lines[std::size_t(row)], column);
    return cells.join('\t');
}

int MessageLog::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

int MessageLog::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString MessageLog::cellText(const Line& line, int column) const
{
    switch (column) {
    case TimeColumn:
        return QDateTime::fromMSecsSinceEpoch(line.time).toString(QStringLiteral("HH:mm:ss"));
    case KindColumn:
        return line.kind == Kind::Problem ? tr("Problem") : tr("Note");
    case SourceColumn:
        return line.source;
    default:
        return line.text;
    }
}

QVariant MessageLog::data(const QModelIndex& index, int role) const
{
    const Line& line = m_lines[std::size_t(index.row())];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return cellText(line, index.column());
    if (role == Qt::ForegroundRole && index.column() == KindColumn && line.kind == Kind::Problem)
        return ReadableColor::on(QApplication::palette().color(QPalette::Base), Problem_color);
    return QVariant();
}

QVariant MessageLog::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    const QString titles[] = {tr("Time"), tr("Kind"), tr("Source"), tr("Text")};
    return titles[section];
}
