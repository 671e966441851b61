#pragma once

#include <vexel/sensors/SoDelayQueueSensor.h>

/** Triggers once, when the delay queue is worked off or its time-out has passed. */
class VEXEL_API SoOneShotSensor : public SoDelayQueueSensor {
public:
    explicit SoOneShotSensor(SoSensorCB function = nullptr, void* data = nullptr) : SoDelayQueueSensor(function, data)
    {
    }
};
