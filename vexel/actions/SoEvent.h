#pragma once

#include <vexel/base/SbTime.h>
#include <vexel/base/SbVec2s.h>
#include <vexel/base/SoType.h>
#include <vexel/base/VexelApi.h>

/** Something that the user did, as the graph is told of it. */
class VEXEL_API SoEvent {
public:
    SoEvent() = default;
    virtual ~SoEvent() = default;

    static SoType getClassTypeId();
    virtual SoType getTypeId() const { return getClassTypeId(); }
    bool isOfType(SoType type) const { return getTypeId().isDerivedFrom(type); }

    /** Time of day. */
    SbTime getTime() const { return m_time; }
    void setTime(SbTime time) { m_time = time; }
    /** Place of the pointer in pixels, from the lower left corner of the viewport's window. */
    SbVec2s getPosition() const { return m_position; }
    void setPosition(const SbVec2s& position) { m_position = position; }

    bool wasShiftDown() const { return m_shift; }
    bool wasCtrlDown() const { return m_ctrl; }
    bool wasAltDown() const { return m_alt; }
    void setModifiers(bool shift, bool ctrl, bool alt)
    {
        m_shift = shift;
        m_ctrl = ctrl;
        m_alt = alt;
    }

private:
    SbTime m_time;
    SbVec2s m_position;
    bool m_shift = false;
    bool m_ctrl = false;
    bool m_alt = false;
};

/** Declares the run-time type of an event class. */
#define SO_EVENT(Class)                                                                                                \
public:                                                                                                                \
    static SoType getClassTypeId();                                                                                    \
    SoType getTypeId() const override                                                                                  \
    {                                                                                                                  \
        return getClassTypeId();                                                                                       \
    }                                                                                                                  \
                                                                                                                       \
private:
