#include <nodescope/entry/detail/CriticalErrorDialog.h>
#include <tests/support/ModalAnswers.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoErrorStack.h>
#include <vexel/base/SoPreferences.h>

#include <QPushButton>
#include <QTextEdit>
#include <gtest/gtest.h>

namespace {

constexpr char Text[] = "The application produced a critical error, click the ignore button to debug the application, "
                        "ok to exit and help to view the callstack.";
constexpr auto Buttons = QMessageBox::Ok | QMessageBox::Ignore | QMessageBox::Help;

/** Posts a critical error and answers the dialog; leaving the process is up to the handler. */
void postAndAnswer(QMessageBox::StandardButton answer)
{
    SoPreferences::setValue("VXL_DEBUG_STACKERROR", "1");
    SoErrorStack::setHandlerCallback(criticalErrorHandler);
    ModalAnswers answers;
    answers.expectBox("Critical error", Text, Buttons, answer);
    if (answer == QMessageBox::Help) {
        answers.expectDialog("Error report", [](QDialog& dialog) {
            const auto* text = dialog.findChild<QTextEdit*>();
            const bool isGood = dialog.size() == QSize(500, 800) && text && text->isReadOnly() &&
                                text->toPlainText().contains("__libc_start_main");
            std::fputs(isGood ? "the report is good" : "the report is bad", stderr);
            dialog.reject();
        });
    }
    SoErrorStack::post("out of luck");
    SoErrorStack::setHandlerCallback(nullptr);
}

class CriticalError : public testing::Test {
protected:
    // Each process that is to end gets a display connection of its own.
    CriticalError() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

} // namespace

using CriticalErrorDeathTest = CriticalError;

TEST_F(CriticalError, IgnoreGoesOn)
{
    postAndAnswer(QMessageBox::Ignore);
}

TEST_F(CriticalErrorDeathTest, OkEndsTheProcess)
{
    EXPECT_EXIT(postAndAnswer(QMessageBox::Ok), testing::ExitedWithCode(1), "");
}

TEST_F(CriticalErrorDeathTest, HelpShowsTheCallsAndEndsTheProcess)
{
    EXPECT_EXIT(postAndAnswer(QMessageBox::Help), testing::ExitedWithCode(1), "the report is good");
}
