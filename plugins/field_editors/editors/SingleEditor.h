#pragma once

#include <plugins/field_editors/editors/EditorWidget.h>

class ProblemLine;
class ValueWidget;

/** Edits the one value of a field with a widget for values of its type. */
class SingleEditor : public EditorWidget {
    Q_OBJECT
public:
    explicit SingleEditor(ValueWidget* values);

private:
    void showField();
    void showValue();

    ValueWidget* m_values;
    ProblemLine* m_problem;
};
