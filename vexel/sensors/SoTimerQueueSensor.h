#pragma once

#include <vexel/base/SbTime.h>
#include <vexel/sensors/SoSensor.h>

/** A sensor that triggers at a time. */
class VEXEL_API SoTimerQueueSensor : public SoSensor {
public:
    ~SoTimerQueueSensor() override;

    SbTime getTriggerTime() const { return m_triggerTime; }
    void unschedule() override;

protected:
    SoTimerQueueSensor(SoSensorCB function, void* data) : SoSensor(function, data) {}

    void scheduleAt(SbTime time);

private:
    SbTime m_triggerTime;
};
