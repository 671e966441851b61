#include "UnattendedRun.h"

#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMessageBox>
#include <QPixmap>
#include <QWindow>
#include <cstdio>

namespace {

constexpr int Milliseconds_to_appear = 10000;

void showOnScreen(QWidget& window)
{
    window.show();
    QElapsedTimer time;
    for (time.start(); !window.windowHandle()->isExposed() && time.elapsed() < Milliseconds_to_appear;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, Milliseconds_to_appear);
    QCoreApplication::processEvents(); // what was left for later, as the widths of columns
}

} // namespace

UnattendedRun::UnattendedRun()
{
    qApp->installEventFilter(this);
}

bool UnattendedRun::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
    if (box) {
        const QString text = box->detailedText().isEmpty() ? box->text() : box->detailedText();
        std::fprintf(stderr, "nodescope: %s\n", qPrintable(text));
        QMetaObject::invokeMethod(box, "reject", Qt::QueuedConnection);
    }
    return false;
}

bool UnattendedRun::writeScreenshot(const std::string& file)
{
    SoNodescopeMainFrame& frame = SoNodescopeViewer::getInstance()->mainFrame();
    showOnScreen(frame);
    const bool isWritten = frame.grab().save(QString::fromLocal8Bit(file.c_str()));
    if (!isWritten)
        std::fprintf(stderr, "nodescope: cannot write the picture '%s'; check folder and file extension\n",
                     file.c_str());
    return isWritten;
}
