#pragma once

#include <extension/NscExtension.h>

class QWidget;
class SoField;

/**
 * An extension that edits the fields of some type. In activate() it registers itself for that type with
 * NscShell::registerExtension(); the panel of field editors then shows its widget when such a field is selected. An
 * editor for exactly the field's type goes before one for a base of it.
 *
 * Edits are commands, given to NscServices::pushCommand(), so that they can be undone.
 */
class NSC_API NscFieldEditor : public NscExtension {
    Q_OBJECT
public:
    explicit NscFieldEditor(Info info);
    ~NscFieldEditor() override;

    /** The widget with which the value is shown and edited, the same at each call. The extension owns it; the panel
     * takes it in as long as it is shown, and gives it back without a parent. */
    virtual QWidget* getWidget() = 0;
    /** Shows the value of a field and follows it; null: of none. A field that goes is replaced by null before its
     * container is gone. */
    virtual void setField(SoField* field) = 0;

    /** Nothing: an editor has no view of its own. */
    ///@{
    void show() override;
    void hide() override;
    ///@}
};
