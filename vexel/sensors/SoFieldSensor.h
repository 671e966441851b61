#pragma once

#include <vexel/sensors/SoDataSensor.h>

/** Attached to a field: changes of its value, and of the node it holds. */
class VEXEL_API SoFieldSensor : public SoDataSensor {
public:
    explicit SoFieldSensor(SoSensorCB function = nullptr, void* data = nullptr) : SoDataSensor(function, data) {}
    ~SoFieldSensor() override { detach(); }

    /** Attaches the sensor, which was not referencing and does not reference what it is attached to. */
    void attach(SoField* field);
    void detach();
    SoField* getAttachedField() const { return m_field; }

    void sourceDestroyed() override;

private:
    SoField* m_field = nullptr;
};
