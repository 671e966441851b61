#pragma once

#include <QColor>
#include <QStringList>
#include <memory>
#include <optional>
#include <vexel/fields/SoMField.h>

/** How the values of a list field stand in the columns of a table: one row for each value. Indices are in range. */
class ListColumns {
public:
    ListColumns() = default;
    ListColumns(const ListColumns&) = delete;
    ListColumns& operator=(const ListColumns&) = delete;
    virtual ~ListColumns() = default;

    virtual QStringList headers() const = 0;
    virtual QString text(const SoMField& list, int row, int column) const = 0;
    /** False, and the reason in `problem`, for a text that is no value. */
    virtual bool setText(SoMField& list, int row, int column, const QString& text, QString& problem) const = 0;
    virtual void copyCell(SoMField& list, int fromRow, int toRow, int column) const = 0;
    /** The colour that a value is. */
    virtual std::optional<QColor> color(const SoMField& list, int row) const;
    /** Whether cells hold numbers, which stand at the right. */
    virtual bool areNumbers() const { return false; }

    /** One value as a single-value field, and a list of that one value; null where there is no such field type. */
    ///@{
    virtual std::unique_ptr<SoField> single(const SoMField& list, int row) const;
    virtual std::unique_ptr<SoMField> list(const SoField& single) const;
    ///@}
};
