#include <vexel/actions/SoEvent.h>

#include <vexel/actions/SoKeyboardEvent.h>
#include <vexel/actions/SoLocation2Event.h>
#include <vexel/actions/SoMouseButtonEvent.h>
#include <vexel/actions/SoMouseWheelEvent.h>

#define SO_EVENT_SOURCE(Class, Base)                                                                                   \
    SoType Class::getClassTypeId()                                                                                     \
    {                                                                                                                  \
        static const SoType type = SoType::createType(Base, #Class);                                                   \
        return type;                                                                                                   \
    }

SO_EVENT_SOURCE(SoEvent, SoType())
SO_EVENT_SOURCE(SoLocation2Event, SoEvent::getClassTypeId())
SO_EVENT_SOURCE(SoMouseWheelEvent, SoEvent::getClassTypeId())
SO_EVENT_SOURCE(SoButtonEvent, SoEvent::getClassTypeId())
SO_EVENT_SOURCE(SoMouseButtonEvent, SoButtonEvent::getClassTypeId())
SO_EVENT_SOURCE(SoKeyboardEvent, SoButtonEvent::getClassTypeId())

namespace {

bool isMouseEvent(const SoEvent* event, SoMouseButtonEvent::Button button, SoButtonEvent::State state)
{
    if (!event || !event->isOfType(SoMouseButtonEvent::getClassTypeId()))
        return false;
    const auto* mouse = static_cast<const SoMouseButtonEvent*>(event);
    return mouse->getState() == state && (button == SoMouseButtonEvent::ANY || mouse->getButton() == button);
}

bool isKeyEvent(const SoEvent* event, int key, SoButtonEvent::State state)
{
    if (!event || !event->isOfType(SoKeyboardEvent::getClassTypeId()))
        return false;
    const auto* keyboard = static_cast<const SoKeyboardEvent*>(event);
    return keyboard->getState() == state && keyboard->getKey() == key;
}

} // namespace

bool SoMouseButtonEvent::isButtonPressEvent(const SoEvent* event, Button button)
{
    return isMouseEvent(event, button, DOWN);
}

bool SoMouseButtonEvent::isButtonReleaseEvent(const SoEvent* event, Button button)
{
    return isMouseEvent(event, button, UP);
}

bool SoKeyboardEvent::isKeyPressEvent(const SoEvent* event, int key)
{
    return isKeyEvent(event, key, DOWN);
}

bool SoKeyboardEvent::isKeyReleaseEvent(const SoEvent* event, int key)
{
    return isKeyEvent(event, key, UP);
}
