#pragma once

#include <vexel/base/SoNotification.h>
#include <vexel/sensors/SoDelayQueueSensor.h>

class SoField;
class SoNode;
class SoPath;

/** A sensor that is attached to data and triggers after it changed. What changed is answered while it triggers. */
class VEXEL_API SoDataSensor : public SoDelayQueueSensor {
public:
    ~SoDataSensor() override;

    /** Called after the data the sensor was attached to is gone. */
    void setDeleteCallback(SoSensorCB function, void* data);

    /** The field that changed, or null; known to sensors of priority 0 only, as all that follows. */
    SoField* getTriggerField() const { return m_field; }
    /** The node whose field or children changed, or null. */
    SoNode* getTriggerNode() const { return m_node; }
    /** The child that was added, inserted, put in place or removed; null for other changes. */
    SoNode* getTriggerChild() const { return m_child; }
    /** Place of that child; -1 for other changes. */
    int getTriggerChildIndex() const { return m_childIndex; }
    SoTriggerType getTriggerType() const { return m_type; }
    /** The way from the attached node to the trigger node; null unless setTriggerPathFlag() is on. */
    SoPath* getTriggerPath() const { return m_path; }
    void setTriggerPathFlag(bool on) { m_wantsPath = on; }
    bool getTriggerPathFlag() const { return m_wantsPath; }

    void trigger() override;

    /** Tells the sensor of a change of what it is attached to. */
    virtual void notify(const SoNotList& list);
    /** Tells the sensor that what it is attached to is being destroyed. */
    virtual void sourceDestroyed();

protected:
    SoDataSensor(SoSensorCB function, void* data) : SoDelayQueueSensor(function, data) {}

private:
    void setTriggerPath(SoPath* path);

    SoSensorCB m_deleteFunction = nullptr;
    void* m_deleteData = nullptr;
    SoField* m_field = nullptr;
    SoNode* m_node = nullptr;
    SoNode* m_child = nullptr;
    SoPath* m_path = nullptr;
    int m_childIndex = -1;
    SoTriggerType m_type = SO_TRIGGER_UNSPECIFIED;
    bool m_wantsPath = false;
};
