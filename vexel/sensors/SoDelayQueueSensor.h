#pragma once

#include <cstdint>

#include <vexel/sensors/SoSensor.h>

/**
 * A sensor that waits in the delay queue until the program has time, sensors of lower priority number first.
 * Priority 0 does not wait: the sensor triggers inside the change that it was told of.
 */
class VEXEL_API SoDelayQueueSensor : public SoSensor {
public:
    ~SoDelayQueueSensor() override;

    static std::uint32_t getDefaultPriority() { return 100; }
    void setPriority(std::uint32_t priority);
    std::uint32_t getPriority() const { return m_priority; }

    void schedule() override;
    void unschedule() override;
    /** True for a sensor that triggers only while the program is idle. */
    virtual bool isIdleOnly() const { return false; }

protected:
    SoDelayQueueSensor(SoSensorCB function, void* data) : SoSensor(function, data) {}

private:
    friend class SoSensorManager;

    std::uint32_t m_priority = 100;
    std::uint64_t m_order = 0;
};
