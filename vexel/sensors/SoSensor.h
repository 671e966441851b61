#pragma once

#include <vexel/base/VexelApi.h>

class SoSensor;

/** Called when a sensor triggers, with the data it was given. */
using SoSensorCB = void (*)(void* data, SoSensor* sensor);

/** Something that is called later, or when something else happens. */
class VEXEL_API SoSensor {
public:
    SoSensor(const SoSensor&) = delete;
    SoSensor& operator=(const SoSensor&) = delete;
    virtual ~SoSensor() = default;

    void setFunction(SoSensorCB function) { m_function = function; }
    SoSensorCB getFunction() const { return m_function; }
    void setData(void* data) { m_data = data; }
    void* getData() const { return m_data; }

    /** Puts the sensor in its queue; scheduling it again changes nothing until it triggered. */
    virtual void schedule() = 0;
    virtual void unschedule() = 0;
    bool isScheduled() const { return m_scheduled; }
    /** Calls the function; the sensor is not scheduled while it runs, so it may schedule itself again. */
    virtual void trigger();

protected:
    SoSensor(SoSensorCB function, void* data) : m_function(function), m_data(data) {}

    bool m_scheduled = false;

private:
    SoSensorCB m_function;
    void* m_data;
};
