#pragma once

#include <vexel/sensors/SoTimerQueueSensor.h>

/** Triggers once, at a set time. */
class VEXEL_API SoAlarmSensor : public SoTimerQueueSensor {
public:
    explicit SoAlarmSensor(SoSensorCB function = nullptr, void* data = nullptr) : SoTimerQueueSensor(function, data) {}

    /** Time of day as SbTime::getTimeOfDay() counts it. */
    void setTime(SbTime time) { m_time = time; }
    void setTimeFromNow(SbTime delay);
    SbTime getTime() const { return m_time; }

    void schedule() override { scheduleAt(m_time); }

private:
    SbTime m_time;
};
