#pragma once

#include <vexel/sensors/SoTimerQueueSensor.h>

/** Triggers again and again at equal intervals; turns that a busy program missed are left out. */
class VEXEL_API SoTimerSensor : public SoTimerQueueSensor {
public:
    explicit SoTimerSensor(SoSensorCB function = nullptr, void* data = nullptr) : SoTimerQueueSensor(function, data) {}

    /** Time of day that the intervals are counted from; the moment of scheduling when none is set. */
    void setBaseTime(SbTime time);
    SbTime getBaseTime() const { return m_baseTime; }
    /** Length of an interval, more than 0; a thirtieth of a second at first. */
    void setInterval(SbTime interval);
    SbTime getInterval() const { return m_interval; }

    void schedule() override;
    void trigger() override;

private:
    void scheduleNext();

    SbTime m_baseTime;
    SbTime m_interval{1.0 / 30.0};
    bool m_hasBaseTime = false;
};
