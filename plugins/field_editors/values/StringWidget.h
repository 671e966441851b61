#pragma once

#include <plugins/field_editors/values/ValueWidget.h>

#include <QString>

class QPlainTextEdit;

/**
 * A text of any number of lines. It counts while it is typed, and belongs together until the focus goes elsewhere or
 * Ctrl+Return is pressed; Escape takes all of that back.
 */
class StringWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit StringWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;
    void forgetInput() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString text() const;
    void takeText();
    void endTyping();
    void cancelTyping();
    void showText();

    QPlainTextEdit* m_edit;
    QString m_shown;
    QString m_before; ///< what stood here when the user began to type
    bool m_isTyping = false;
};
