#pragma once

#include <memory>
#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/fields/SoField.h>

class QPlainTextEdit;

/**
 * The file text of a field of any type. What is typed counts when Ctrl+Return is pressed or the focus goes elsewhere;
 * Escape takes it back. What a field refers to is named only.
 */
class FileTextWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit FileTextWidget(QWidget* parent = nullptr);
    ~FileTextWidget() override;

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;
    void forgetInput() override { showText(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void check();
    void takeText();
    void showText();

    std::unique_ptr<SoField> m_value;
    QString m_shown;
    QPlainTextEdit* m_edit;
};
