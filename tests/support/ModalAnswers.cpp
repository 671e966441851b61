#include "ModalAnswers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QPointer>
#include <QProgressDialog>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QMessageBox& asBox(QDialog& dialog)
{
    auto* box = qobject_cast<QMessageBox*>(&dialog);
    if (!box)
        throw std::logic_error("the dialog is no message box");
    return *box;
}

void checkBox(QMessageBox& box, const QString& text, QMessageBox::StandardButtons buttons)
{
    EXPECT_EQ(box.text().toStdString(), text.toStdString());
    EXPECT_EQ(int(box.standardButtons()), int(buttons));
}

} // namespace

ModalAnswers::ModalAnswers()
{
    qApp->installEventFilter(this);
}

ModalAnswers::~ModalAnswers()
{
    for (const Expected& expected : m_expected)
        ADD_FAILURE() << "no dialog '" << expected.title.toStdString() << "' came up";
}

void ModalAnswers::expectBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                             QMessageBox::StandardButton answer)
{
    expectDialog(title, [=](QDialog& dialog) {
        QMessageBox& box = asBox(dialog);
        checkBox(box, text, buttons);
        box.button(answer)->click();
    });
}

void ModalAnswers::expectEscapedBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons)
{
    expectDialog(title, [=](QDialog& dialog) {
        QMessageBox& box = asBox(dialog);
        checkBox(box, text, buttons);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
}

void ModalAnswers::expectBox(const QString& title, std::function<void(QMessageBox&)> inspect)
{
    expectDialog(title, [inspect](QDialog& dialog) {
        inspect(asBox(dialog));
        dialog.accept();
    });
}

void ModalAnswers::expectFileDialog(const QString& title, std::function<void(QFileDialog&)> inspect)
{
    expectDialog(title, [inspect](QDialog& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        ASSERT_TRUE(files);
        inspect(*files);
        dialog.accept();
    });
}

void ModalAnswers::expectDialog(const QString& title, std::function<void(QDialog&)> answer)
{
    m_expected.push_back({title, std::move(answer)});
}

bool ModalAnswers::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog && event->type() == QEvent::Show && dialog->isModal() && !qobject_cast<QProgressDialog*>(dialog)) {
        // The dialog is complete only when its own event loop runs.
        QMetaObject::invokeMethod(
            this,
            [this, shown = QPointer<QDialog>(dialog)] {
                if (shown)
                    answer(*shown);
            },
            Qt::QueuedConnection);
    }
    return false;
}

void ModalAnswers::answer(QDialog& dialog)
{
    if (m_expected.empty()) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        ADD_FAILURE() << "nobody expects the dialog '" << dialog.windowTitle().toStdString()
                      << "': " << (box ? box->text().toStdString() : std::string());
        dialog.reject();
        return;
    }
    const Expected expected = std::move(m_expected.front());
    m_expected.pop_front();
    EXPECT_EQ(dialog.windowTitle().toStdString(), expected.title.toStdString());
    expected.answer(dialog);
}
