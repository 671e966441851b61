#pragma once

#include <QWidget>
#include <plugins/field_editors/edit/FieldBinding.h>

class ValueWidget;

/** What an editor shows in the panel; the field that it shows is in its binding. */
class EditorWidget : public QWidget {
    Q_OBJECT
public:
    /** Null: none. */
    void setField(SoField* field) { m_binding.setField(field); }

protected:
    EditorWidget() = default;

    /** What the user does with the widget in one go is undone in one go. */
    void connectGestures(ValueWidget& values);

    FieldBinding m_binding;
};
