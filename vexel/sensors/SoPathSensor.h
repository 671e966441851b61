#pragma once

#include <vexel/sensors/SoDataSensor.h>

/** Attached to a path: changes of its nodes and of everything below its tail. */
class VEXEL_API SoPathSensor : public SoDataSensor {
public:
    explicit SoPathSensor(SoSensorCB function = nullptr, void* data = nullptr) : SoDataSensor(function, data) {}
    ~SoPathSensor() override { detach(); }

    /** Attaches the sensor, which was not referencing and does not reference what it is attached to. */
    void attach(SoPath* path);
    void detach();
    SoPath* getAttachedPath() const { return m_path; }

    void sourceDestroyed() override;

private:
    SoPath* m_path = nullptr;
};
