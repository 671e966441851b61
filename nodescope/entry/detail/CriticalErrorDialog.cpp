#include "CriticalErrorDialog.h"

#include <vexel/base/SoErrorStack.h>

#include <QDialog>
#include <QMessageBox>
#include <QTextEdit>
#include <QVBoxLayout>
#include <cstdlib>

namespace {

constexpr QSize Report_size(500, 800);

QString reportText(const SoError* error)
{
    const auto* critical = dynamic_cast<const SoErrorStack*>(error);
    return critical ? critical->getStack().toQString() : QStringLiteral("------- No callstack information -------");
}

void showReport(const QString& text)
{
    QDialog dialog;
    dialog.setWindowTitle(QMessageBox::tr("Error report"));
    dialog.setModal(true);
    dialog.resize(Report_size);
    auto* view = new QTextEdit(text);
    view->setReadOnly(true);
    (new QVBoxLayout(&dialog))->addWidget(view);
    dialog.exec();
}

} // namespace

void criticalErrorHandler(const SoError* error, void*)
{
    const auto answer = QMessageBox::critical(
        nullptr, QMessageBox::tr("Critical error"),
        QMessageBox::tr("The application produced a critical error, click the ignore button to debug the application, "
                        "ok to exit and help to view the callstack."),
        QMessageBox::Ok | QMessageBox::Ignore | QMessageBox::Help, QMessageBox::Ok);
    if (answer == QMessageBox::Help)
        showReport(reportText(error));
    if (answer == QMessageBox::Help || answer == QMessageBox::Ok)
        std::exit(1);
}
