#pragma once

#include <QPointer>
#include <extension/NscExtension.h>

class FieldHeader;
class NscFieldEditor;
class QDockWidget;
class QLabel;
class QScrollArea;
class SoField;
class SoType;

/** The dock that shows the editor of the selected field. Editors are found in the shell's list, whoever made them. */
class FieldEditorPanel : public NscExtension {
    Q_OBJECT
public:
    explicit FieldEditorPanel(Info info);
    ~FieldEditorPanel() override;

    void activate() override;
    void show() override;
    void hide() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setField(SoField* field);
    void showEditor(NscFieldEditor* editor);
    static NscFieldEditor* findEditor(SoType type);

    QPointer<QDockWidget> m_dock;
    FieldHeader* m_header;
    QScrollArea* m_place;
    QLabel* m_hint;
    QPointer<NscFieldEditor> m_editor;
};
