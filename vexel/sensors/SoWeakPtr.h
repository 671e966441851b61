#pragma once

#include <type_traits>

#include <vexel/base/SoBase.h>
#include <vexel/fields/SoField.h>
#include <vexel/sensors/SoDataSensor.h>

/**
 * Refers to a field, or to an object with a reference count, without keeping it alive: answers null once that is gone.
 * Changes of it trigger nothing; its end calls what setDeleteCallback() names.
 */
template <class Object>
class SoWeakPtr : private SoDataSensor {
public:
    explicit SoWeakPtr(Object* object = nullptr) : SoDataSensor(nullptr, nullptr) { set(object); }
    SoWeakPtr(const SoWeakPtr& other) : SoWeakPtr(other.get()) {}
    SoWeakPtr& operator=(const SoWeakPtr& other)
    {
        if (this != &other)
            set(other.get());
        return *this;
    }
    ~SoWeakPtr() override { set(nullptr); }

    Object* get() const { return m_object; }
    void set(Object* object)
    {
        if (m_object)
            leave(*m_object);
        m_object = object;
        if (m_object)
            join(*m_object);
    }

    using SoDataSensor::setDeleteCallback;

private:
    void join(Object& object)
    {
        if constexpr (std::is_base_of_v<SoField, Object>)
            object.addAuditor(this);
        else
            object.addAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
    }
    void leave(Object& object)
    {
        if constexpr (std::is_base_of_v<SoField, Object>)
            object.removeAuditor(this);
        else
            object.removeAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
    }

    void notify(const SoNotList&) override {}
    void sourceDestroyed() override
    {
        m_object = nullptr;
        SoDataSensor::sourceDestroyed();
    }

    Object* m_object = nullptr;
};
