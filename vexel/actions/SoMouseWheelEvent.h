#pragma once

#include <vexel/actions/SoEvent.h>

/** The wheel of the mouse was turned. */
class VEXEL_API SoMouseWheelEvent : public SoEvent {
    SO_EVENT(SoMouseWheelEvent)
public:
    /** In eighths of a degree, positive away from the user: 120 for one notch of most wheels. */
    int getDelta() const { return m_delta; }
    void setDelta(int delta) { m_delta = delta; }

private:
    int m_delta = 0;
};
