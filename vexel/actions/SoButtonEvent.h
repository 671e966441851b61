#pragma once

#include <vexel/actions/SoEvent.h>

/** A button or key went down or up. */
class VEXEL_API SoButtonEvent : public SoEvent {
    SO_EVENT(SoButtonEvent)
public:
    enum State { UP, DOWN, UNKNOWN };

    State getState() const { return m_state; }
    void setState(State state) { m_state = state; }

private:
    State m_state = UNKNOWN;
};
