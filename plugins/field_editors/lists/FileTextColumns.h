#pragma once

#include <plugins/field_editors/lists/ListColumns.h>

/** One column with the file text of each value, for lists of any type; of nodes and the like it shows type and name. */
class FileTextColumns : public ListColumns {
public:
    QStringList headers() const override;
    QString text(const SoMField& list, int row, int column) const override;
    bool setText(SoMField& list, int row, int column, const QString& text, QString& problem) const override;
    void copyCell(SoMField& list, int fromRow, int toRow, int column) const override;
};
