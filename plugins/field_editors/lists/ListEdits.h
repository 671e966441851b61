#pragma once

#include <QCoreApplication>
#include <memory>
#include <vector>

class FieldBinding;
class ListColumns;
class SoMField;

/** Rows that stand one after the other. */
struct RowRange {
    int first;
    int last;
    int count() const { return last - first + 1; }
};

/** A rectangle of cells. */
struct CellRange {
    RowRange rows;
    int firstColumn;
    int lastColumn;
};

/** Changes of many values of a list, each of which is undone as one. */
class ListEdits {
    Q_DECLARE_TR_FUNCTIONS(ListEdits)
public:
    ListEdits(FieldBinding& binding, const ListColumns& columns) : m_binding(binding), m_columns(columns) {}

    /** Puts values in front of a row, equal to it; of zeros when the list is empty. */
    void insertRows(int row, int num);
    /** Removes rows; the ranges are in any order and do not overlap. */
    void removeRows(std::vector<RowRange> ranges);
    /** Makes the list longer or shorter. */
    void setCount(int num);
    /** Gives all cells what stands in the topmost one of their column. */
    void fill(const CellRange& cells);
    /**
     * Puts a table, whose cells are separated by tabs, into the cells from `row` and `column` on; the list grows as
     * needed. When one of the cells is no value nothing is changed.
     * @return the reason; empty: it was done
     */
    QString paste(int row, int column, const QString& table);
    /** The cells as such a table. */
    QString copy(const CellRange& cells) const;

    /** A list of the one value of `list` at `row` after a cell of it got another text; null when that is no value. */
    static std::unique_ptr<SoMField> rowWith(const SoMField& list, const ListColumns& columns, int row, int column,
                                             const QString& text, QString& problem);

private:
    SoMField& list() const;
    std::unique_ptr<SoMField> copyOfRows(const RowRange& rows) const;

    FieldBinding& m_binding;
    const ListColumns& m_columns;
};
