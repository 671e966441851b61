#include <vexel/viewer/detail/EventTranslator.h>

#include <vexel/actions/SoKeyboardEvent.h>
#include <vexel/actions/SoLocation2Event.h>
#include <vexel/actions/SoMouseButtonEvent.h>
#include <vexel/actions/SoMouseWheelEvent.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

namespace {

SoMouseButtonEvent::Button buttonOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return SoMouseButtonEvent::BUTTON1;
    case Qt::MiddleButton:
        return SoMouseButtonEvent::BUTTON2;
    case Qt::RightButton:
        return SoMouseButtonEvent::BUTTON3;
    default:
        return SoMouseButtonEvent::ANY;
    }
}

std::unique_ptr<SoEvent> mouseButton(const QMouseEvent& mouse, SoButtonEvent::State state)
{
    auto event = std::make_unique<SoMouseButtonEvent>();
    event->setButton(buttonOf(mouse.button()));
    event->setState(state);
    return event;
}

std::unique_ptr<SoEvent> key(const QKeyEvent& keyboard, SoButtonEvent::State state)
{
    auto event = std::make_unique<SoKeyboardEvent>();
    event->setKey(keyboard.key());
    event->setState(state);
    const QVector<uint> characters = keyboard.text().toUcs4();
    event->setCharacter(characters.isEmpty() ? 0 : characters.first());
    return event;
}

std::unique_ptr<SoEvent> withoutPlace(const QEvent& event, QPoint& place)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        place = mouse.pos();
        return mouseButton(mouse, event.type() == QEvent::MouseButtonPress ? SoButtonEvent::DOWN : SoButtonEvent::UP);
    }
    case QEvent::MouseMove:
        place = static_cast<const QMouseEvent&>(event).pos();
        return std::make_unique<SoLocation2Event>();
    case QEvent::Leave: // the place of the pointer is one outside then
        return std::make_unique<SoLocation2Event>();
    case QEvent::Wheel: {
        const auto& wheel = static_cast<const QWheelEvent&>(event);
        place = wheel.position().toPoint();
        auto turned = std::make_unique<SoMouseWheelEvent>();
        turned->setDelta(wheel.angleDelta().y());
        return turned;
    }
    case QEvent::KeyPress:
        return key(static_cast<const QKeyEvent&>(event), SoButtonEvent::DOWN);
    case QEvent::KeyRelease:
        return key(static_cast<const QKeyEvent&>(event), SoButtonEvent::UP);
    default:
        return nullptr;
    }
}

} // namespace

std::unique_ptr<SoEvent> translateEvent(const QEvent& event, const QWidget& widget)
{
    QPoint place = widget.mapFromGlobal(QCursor::pos());
    std::unique_ptr<SoEvent> translated = withoutPlace(event, place);
    if (!translated)
        return nullptr;
    const qreal ratio = widget.devicePixelRatioF();
    translated->setPosition(
        SbVec2s(static_cast<short>(place.x() * ratio), static_cast<short>((widget.height() - 1 - place.y()) * ratio)));
    translated->setTime(SbTime::getTimeOfDay());
    const Qt::KeyboardModifiers modifiers = event.type() == QEvent::Leave
                                                ? QGuiApplication::keyboardModifiers()
                                                : static_cast<const QInputEvent&>(event).modifiers();
    translated->setModifiers(modifiers & Qt::ShiftModifier, modifiers & Qt::ControlModifier,
                             modifiers & Qt::AltModifier);
    return translated;
}
