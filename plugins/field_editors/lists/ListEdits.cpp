#include "ListEdits.h"

#include "ListColumns.h"

#include <plugins/field_editors/edit/FieldBinding.h>

#include <algorithm>

namespace {

std::unique_ptr<SoMField> emptyLike(const SoMField& list)
{
    std::unique_ptr<SoMField> empty(static_cast<SoMField*>(list.getTypeId().createInstance()));
    empty->replaceValues(0, 0, list, 0, 0); // no values, but the mnemonics of an enumeration
    return empty;
}

/** Spreadsheets end each line of what they copy, the last one too. */
QStringList linesOf(QString table)
{
    table.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (table.endsWith(QLatin1Char('\n')))
        table.chop(1);
    return table.split(QLatin1Char('\n'));
}

} // namespace

SoMField& ListEdits::list() const
{
    return static_cast<SoMField&>(*m_binding.field());
}

std::unique_ptr<SoMField> ListEdits::copyOfRows(const RowRange& rows) const
{
    std::unique_ptr<SoMField> copy = emptyLike(list());
    copy->replaceValues(0, 0, list(), rows.first, rows.count());
    return copy;
}

std::unique_ptr<SoMField> ListEdits::rowWith(const SoMField& list, const ListColumns& columns, int row, int column,
                                             const QString& text, QString& problem)
{
    std::unique_ptr<SoMField> value = emptyLike(list);
    value->replaceValues(0, 0, list, row, 1);
    if (!columns.setText(*value, 0, column, text, problem))
        return nullptr;
    return value;
}

void ListEdits::insertRows(int row, int num)
{
    std::unique_ptr<SoMField> values = emptyLike(list());
    if (list().getNum() == 0) {
        values->setNum(num);
    } else {
        const int model = std::clamp(row, 0, list().getNum() - 1);
        values->replaceValues(0, 0, list(), model, 1);
        while (values->getNum() < num) {
            const std::unique_ptr<SoMField> more = emptyLike(list());
            more->copyFrom(*values);
            values->replaceValues(values->getNum(), 0, *more, 0, num - values->getNum());
        }
    }
    m_binding.replaceValues(row, 0, std::move(values));
}

void ListEdits::removeRows(std::vector<RowRange> ranges)
{
    if (ranges.empty())
        return;
    std::sort(ranges.begin(), ranges.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    const RowRange all{ranges.front().first, ranges.back().last};
    std::unique_ptr<SoMField> kept = emptyLike(list());
    for (std::size_t i = 1; i < ranges.size(); ++i) {
        const int begin = ranges[i - 1].last + 1;
        kept->replaceValues(kept->getNum(), 0, list(), begin, ranges[i].first - begin);
    }
    m_binding.replaceValues(all.first, all.count(), std::move(kept));
}

void ListEdits::setCount(int num)
{
    const int before = list().getNum();
    if (num > before)
        insertRows(before, num - before);
    else if (num < before)
        removeRows({{num, before - 1}});
}

void ListEdits::fill(const CellRange& cells)
{
    std::unique_ptr<SoMField> values = copyOfRows(cells.rows);
    for (int row = 1; row < cells.rows.count(); ++row) {
        for (int column = cells.firstColumn; column <= cells.lastColumn; ++column)
            m_columns.copyCell(*values, 0, row, column);
    }
    m_binding.replaceValues(cells.rows.first, cells.rows.count(), std::move(values));
}

QString ListEdits::paste(int row, int column, const QString& table)
{
    const QStringList lines = linesOf(table);
    const int columnCount = m_columns.headers().size();
    const int overwritten = std::min(int(lines.size()), list().getNum() - row);
    std::unique_ptr<SoMField> values = copyOfRows({row, row + overwritten - 1});
    values->setNum(lines.size());
    for (int i = 0; i < lines.size(); ++i) {
        // A single column may hold texts with tabs in them.
        const QStringList cells = columnCount == 1 ? QStringList(lines[i]) : lines[i].split(QLatin1Char('\t'));
        if (column + cells.size() > columnCount)
            return tr("Line %1 has %2 columns, but there are only %3 from here on.")
                .arg(i + 1)
                .arg(cells.size())
                .arg(columnCount - column);
        for (int k = 0; k < cells.size(); ++k) {
            QString problem;
            if (!m_columns.setText(*values, i, column + k, cells[k], problem))
                return tr("Line %1, column %2: %3").arg(i + 1).arg(k + 1).arg(problem);
        }
    }
    m_binding.replaceValues(row, overwritten, std::move(values));
    return QString();
}

QString ListEdits::copy(const CellRange& cells) const
{
    QString table;
    for (int row = cells.rows.first; row <= cells.rows.last; ++row) {
        for (int column = cells.firstColumn; column <= cells.lastColumn; ++column)
            table += m_columns.text(list(), row, column) + QLatin1Char(column < cells.lastColumn ? '\t' : '\n');
    }
    return table;
}
