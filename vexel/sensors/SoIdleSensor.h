#pragma once

#include <vexel/sensors/SoDelayQueueSensor.h>

/** Triggers once, when the program has nothing else to do; never because of the time-out of the delay queue. */
class VEXEL_API SoIdleSensor : public SoDelayQueueSensor {
public:
    explicit SoIdleSensor(SoSensorCB function = nullptr, void* data = nullptr) : SoDelayQueueSensor(function, data) {}

    bool isIdleOnly() const override { return true; }
};
