#pragma once

#include <vexel/sensors/SoDataSensor.h>

/** Attached to a node: changes of its fields, its children, and of everything below it. */
class VEXEL_API SoNodeSensor : public SoDataSensor {
public:
    explicit SoNodeSensor(SoSensorCB function = nullptr, void* data = nullptr) : SoDataSensor(function, data) {}
    ~SoNodeSensor() override { detach(); }

    /** Attaches the sensor, which was not referencing and does not reference what it is attached to. */
    void attach(SoNode* node);
    void detach();
    SoNode* getAttachedNode() const { return m_node; }

    void sourceDestroyed() override;

private:
    SoNode* m_node = nullptr;
};
