#pragma once

#include <memory>
#include <plugins/field_editors/editors/EditorWidget.h>

class ListColumns;
class ListTable;
class ProblemLine;
class QLabel;
class ValueWidget;

/** Edits the values of a list field in a table, and the current one with a widget for values of its type. */
class ListEditor : public EditorWidget {
    Q_OBJECT
public:
    /** @param values  null: the table is all */
    ListEditor(std::unique_ptr<ListColumns> columns, ValueWidget* values);
    ~ListEditor() override;

private:
    void layOut();
    void showField();
    void showRow();
    void showValue();
    void takeValue(const SoField& value);
    const SoMField* list() const { return static_cast<const SoMField*>(m_binding.field()); }

    std::unique_ptr<ListColumns> m_columns;
    ListTable* m_table;
    ValueWidget* m_values;
    QLabel* m_count;
    ProblemLine* m_problem;
};
