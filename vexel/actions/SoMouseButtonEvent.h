#pragma once

#include <vexel/actions/SoButtonEvent.h>

/** A button of the mouse went down or up. */
class VEXEL_API SoMouseButtonEvent : public SoButtonEvent {
    SO_EVENT(SoMouseButtonEvent)
public:
    enum Button { ANY, BUTTON1, BUTTON2, BUTTON3 };

    Button getButton() const { return m_button; }
    void setButton(Button button) { m_button = button; }

    static bool isButtonPressEvent(const SoEvent* event, Button button);
    static bool isButtonReleaseEvent(const SoEvent* event, Button button);

private:
    Button m_button = ANY;
};
