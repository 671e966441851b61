#pragma once

#include <QPointer>
#include <extension/NscFieldEditor.h>
#include <functional>
#include <plugins/field_editors/editors/EditorWidget.h>
#include <vexel/base/SoType.h>

/** An editor of a field type. Its widget is made when it is shown for the first time: most never are. */
class FieldEditor : public NscFieldEditor {
    Q_OBJECT
public:
    using MakeWidget = std::function<EditorWidget*()>;

    /** @param isExact  false: for derived types as well */
    FieldEditor(Info info, SoType type, bool isExact, MakeWidget makeWidget);
    ~FieldEditor() override;

    void activate() override;
    QWidget* getWidget() override;
    void setField(SoField* field) override;

private:
    SoType m_type;
    bool m_isExact;
    MakeWidget m_makeWidget;
    QPointer<EditorWidget> m_widget;
};
