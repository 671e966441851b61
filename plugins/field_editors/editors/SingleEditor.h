#pragma once

#include <QPointer>
#include <extension/NscFieldEditor.h>
#include <plugins/field_editors/edit/FieldBinding.h>
#include <vexel/base/SoType.h>

class ProblemLine;
class ValueWidget;

/** Edits the one value of a field with a widget for values of its type. */
class SingleEditor : public NscFieldEditor {
    Q_OBJECT
public:
    /** @param isExact  false: for derived types as well */
    SingleEditor(Info info, SoType type, bool isExact, ValueWidget* values);
    ~SingleEditor() override;

    void activate() override;
    QWidget* getWidget() override { return m_widget; }
    void setField(SoField* field) override { m_binding.setField(field); }

private:
    void showField();
    void showValue();

    SoType m_type;
    bool m_isExact;
    FieldBinding m_binding;
    QPointer<QWidget> m_widget;
    ValueWidget* m_values;
    ProblemLine* m_problem;
};
