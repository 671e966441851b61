#include <vexel/viewer/SoQt.h>

#include <vexel/io/SoDB.h>
#include <vexel/viewer/detail/SensorPump.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace {

QPointer<QWidget> s_topWidget;
std::unique_ptr<SensorPump> s_pump;

} // namespace

void SoQt::init(QWidget* topWidget)
{
    SoDB::init();
    s_topWidget = topWidget;
    if (!s_pump)
        s_pump = std::make_unique<SensorPump>();
}

QWidget* SoQt::getTopLevelWidget()
{
    return s_topWidget;
}

void SoQt::show(QWidget* widget)
{
    widget->show();
}

int SoQt::mainLoop()
{
    return QApplication::exec();
}

void SoQt::finish()
{
    s_pump.reset();
    s_topWidget.clear();
}
