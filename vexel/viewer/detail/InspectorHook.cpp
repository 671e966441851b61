#include <vexel/viewer/detail/InspectorHook.h>

#include <vexel/actions/SoEvent.h>
#include <vexel/base/SoLibNodescope.h>
#include <vexel/viewer/SoQtRenderArea.h>
#include <vexel/viewer/detail/EventTranslator.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace {

constexpr int Service_milliseconds = 50;

bool isKey(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F12 && key.modifiers() == Qt::ShiftModifier;
}

bool isClick(const QEvent& event)
{
    return event.type() == QEvent::MouseButtonPress &&
           static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

} // namespace

InspectorHook::InspectorHook(SoQtRenderArea& area) : m_area(area)
{
    m_service.setInterval(Service_milliseconds);
    connect(&m_service, &QTimer::timeout, this, &InspectorHook::serve);
}

InspectorHook::~InspectorHook()
{
    if (m_service.isActive())
        SoLibNodescope::instance()->stop();
}

bool InspectorHook::handleEvent(const QEvent& event)
{
    if (isKey(event)) {
        start();
        return true;
    }
    if (m_service.isActive() && isClick(event)) {
        const SbVec2s place = translateEvent(event, *m_area.getGLWidget())->getPosition();
        SoLibNodescope::instance()->setPickAction(m_area.getViewportRegion(), place);
    }
    return false;
}

void InspectorHook::start()
{
    SoLibNodescope* const inspector = SoLibNodescope::instance(); // tells why when there is none
    if (!inspector || inspector->isRunning())
        return;
    inspector->processEvents(); // what is left of the inspection before
    inspector->startRenderArea(&m_area);
    m_service.start();
}

void InspectorHook::serve()
{
    if (!SoLibNodescope::instance()->processEvents())
        m_service.stop();
}
