#include <vexel/sensors/SoDataSensor.h>

#include <vector>

#include <vexel/base/SoPath.h>
#include <vexel/fields/SoField.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/sensors/SoFieldSensor.h>
#include <vexel/sensors/SoNodeSensor.h>
#include <vexel/sensors/SoPathSensor.h>

SoDataSensor::~SoDataSensor()
{
    setTriggerPath(nullptr);
}

void SoDataSensor::setDeleteCallback(SoSensorCB function, void* data)
{
    m_deleteFunction = function;
    m_deleteData = data;
}

void SoDataSensor::setTriggerPath(SoPath* path)
{
    if (path)
        path->ref();
    if (m_path)
        m_path->unref();
    m_path = path;
}

namespace {

// The containers of a notification stand from the listener's object down to the change.
SoPath* pathOf(const SoNotList& list)
{
    auto* path = new SoPath;
    for (const SoNotRec* record = list.last; record; record = record->previous) {
        if (record->base->isOfType(SoNode::getClassTypeId()))
            path->append(static_cast<SoNode*>(record->base));
    }
    return path;
}

} // namespace

void SoDataSensor::notify(const SoNotList& list)
{
    if (getPriority() != 0) {
        schedule();
        return;
    }
    m_field = list.field;
    m_node = list.node;
    m_child = list.child;
    m_childIndex = list.childIndex;
    m_type = list.type;
    if (m_wantsPath)
        setTriggerPath(pathOf(list));
    trigger();
}

void SoDataSensor::trigger()
{
    SoDelayQueueSensor::trigger();
    m_field = nullptr;
    m_node = nullptr;
    m_child = nullptr;
    m_childIndex = -1;
    m_type = SO_TRIGGER_UNSPECIFIED;
    setTriggerPath(nullptr);
}

void SoDataSensor::sourceDestroyed()
{
    unschedule();
    if (m_deleteFunction)
        m_deleteFunction(m_deleteData, this);
}

void SoNodeSensor::attach(SoNode* node)
{
    detach();
    m_node = node;
    if (m_node)
        m_node->addAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
}

void SoNodeSensor::detach()
{
    unschedule();
    if (m_node)
        m_node->removeAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
    m_node = nullptr;
}

void SoNodeSensor::sourceDestroyed()
{
    m_node = nullptr;
    SoDataSensor::sourceDestroyed();
}

void SoPathSensor::attach(SoPath* path)
{
    detach();
    m_path = path;
    if (m_path)
        m_path->addAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
}

void SoPathSensor::detach()
{
    unschedule();
    if (m_path)
        m_path->removeAuditor(static_cast<SoDataSensor*>(this), SoAuditorType::Sensor);
    m_path = nullptr;
}

void SoPathSensor::sourceDestroyed()
{
    m_path = nullptr;
    SoDataSensor::sourceDestroyed();
}

void SoFieldSensor::attach(SoField* field)
{
    detach();
    m_field = field;
    if (m_field)
        m_field->addAuditor(this);
}

void SoFieldSensor::detach()
{
    unschedule();
    if (m_field)
        m_field->removeAuditor(this);
    m_field = nullptr;
}

void SoFieldSensor::sourceDestroyed()
{
    m_field = nullptr;
    SoDataSensor::sourceDestroyed();
}
