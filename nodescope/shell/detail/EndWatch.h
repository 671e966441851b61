#pragma once

#include <vexel/base/SoBase.h>
#include <vexel/sensors/SoFieldSensor.h>

/** Calls a function when a field is destroyed; changes of the field are of no interest. */
class FieldEndWatch : public SoFieldSensor {
public:
    FieldEndWatch(SoSensorCB function, void* data) { setDeleteCallback(function, data); }
    void notify(const SoNotList&) override {}
};

/** The same for an object. */
class ObjectEndWatch : public SoDataSensor {
public:
    ObjectEndWatch(SoSensorCB function, void* data) : SoDataSensor(nullptr, nullptr)
    {
        setDeleteCallback(function, data);
    }
    ~ObjectEndWatch() override { attach(nullptr); }

    void attach(SoBase* object)
    {
        if (m_object)
            m_object->removeAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
        m_object = object;
        if (m_object)
            m_object->addAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
    }
    void notify(const SoNotList&) override {}
    void sourceDestroyed() override
    {
        m_object = nullptr;
        SoDataSensor::sourceDestroyed();
    }

private:
    SoBase* m_object = nullptr;
};
