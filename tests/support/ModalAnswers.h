#pragma once

#include <QMessageBox>
#include <QObject>
#include <deque>
#include <functional>

class QFileDialog;

/**
 * Answers the modal dialogs that come up while it lives, in the order in which they are expected. A dialog that is not
 * expected, that looks otherwise, or that never came fails the test. Texts are compared exactly.
 */
class ModalAnswers : public QObject {
public:
    ModalAnswers();
    ~ModalAnswers() override;

    void expectBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                   QMessageBox::StandardButton answer);
    /** A box that is answered with the escape key. */
    void expectEscapedBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons);
    /** A box that `inspect` looks at before it is accepted. */
    void expectBox(const QString& title, std::function<void(QMessageBox&)> inspect);
    /** A file dialog; `inspect` looks at it and chooses before it is accepted. */
    void expectFileDialog(const QString& title, std::function<void(QFileDialog&)> inspect);
    /** Any dialog; `answer` closes it. */
    void expectDialog(const QString& title, std::function<void(QDialog&)> answer);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Expected {
        QString title;
        std::function<void(QDialog&)> answer;
    };

    void answer(QDialog& dialog);

    std::deque<Expected> m_expected;
};
