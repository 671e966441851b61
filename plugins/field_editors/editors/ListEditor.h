#pragma once

#include <QPointer>
#include <extension/NscFieldEditor.h>
#include <memory>
#include <plugins/field_editors/edit/FieldBinding.h>
#include <vexel/base/SoType.h>

class ListColumns;
class ListTable;
class ProblemLine;
class QLabel;
class ValueWidget;

/** Edits the values of a list field in a table, and the current one with a widget for values of its type. */
class ListEditor : public NscFieldEditor {
    Q_OBJECT
public:
    /**
     * @param isExact  false: for derived types as well
     * @param values   null: the table is all
     */
    ListEditor(Info info, SoType type, bool isExact, std::unique_ptr<ListColumns> columns, ValueWidget* values);
    ~ListEditor() override;

    void activate() override;
    QWidget* getWidget() override { return m_widget; }
    void setField(SoField* field) override { m_binding.setField(field); }

private:
    void layOut();
    void showField();
    void showRow();
    void showValue();
    void takeValue(const SoField& value);
    const SoMField* list() const { return static_cast<const SoMField*>(m_binding.field()); }

    SoType m_type;
    bool m_isExact;
    FieldBinding m_binding;
    std::unique_ptr<ListColumns> m_columns;
    QPointer<QWidget> m_widget;
    ListTable* m_table;
    ValueWidget* m_values;
    QLabel* m_count;
    ProblemLine* m_problem;
};
