#include <vexel/sensors/SoSensorManager.h>

#include <cmath>
#include <functional>
#include <vector>

#include <vexel/io/SoDB.h>
#include <vexel/sensors/SoAlarmSensor.h>
#include <vexel/sensors/SoDelayQueueSensor.h>
#include <vexel/sensors/SoTimerSensor.h>

bool SoSensorManager::DelayOrder::operator()(const SoDelayQueueSensor* a, const SoDelayQueueSensor* b) const
{
    return a->m_priority != b->m_priority ? a->m_priority < b->m_priority : a->m_order < b->m_order;
}

bool SoSensorManager::TimerOrder::operator()(const SoTimerQueueSensor* a, const SoTimerQueueSensor* b) const
{
    if (a->getTriggerTime() != b->getTriggerTime())
        return a->getTriggerTime() < b->getTriggerTime();
    return std::less<>()(a, b);
}

void SoSensorManager::setChangedCallback(void (*function)(void* data), void* data)
{
    m_changedFunction = function;
    m_changedData = data;
}

void SoSensorManager::changed()
{
    if (m_changedFunction)
        m_changedFunction(m_changedData);
}

void SoSensorManager::insert(SoDelayQueueSensor* sensor)
{
    sensor->m_order = ++m_counter;
    m_delayQueue.insert(sensor);
    changed();
}

void SoSensorManager::remove(SoDelayQueueSensor* sensor)
{
    m_delayQueue.erase(sensor);
    changed();
}

void SoSensorManager::insert(SoTimerQueueSensor* sensor)
{
    m_timerQueue.insert(sensor);
    changed();
}

void SoSensorManager::remove(SoTimerQueueSensor* sensor)
{
    m_timerQueue.erase(sensor);
    changed();
}

void SoSensorManager::processTimerQueue()
{
    const SbTime now = SbTime::getTimeOfDay();
    while (!m_timerQueue.empty() && (*m_timerQueue.begin())->getTriggerTime() <= now)
        (*m_timerQueue.begin())->trigger();
}

void SoSensorManager::processDelayQueue(bool isIdle)
{
    // Sensors scheduled from now on wait for the next turn; otherwise two that schedule each other would never end.
    const std::uint64_t last = m_counter;
    for (auto next = m_delayQueue.begin(); next != m_delayQueue.end();) {
        SoDelayQueueSensor* sensor = *next;
        if (sensor->m_order > last || (sensor->isIdleOnly() && !isIdle)) {
            ++next;
            continue;
        }
        sensor->trigger();
        // The callback may have changed the queue in any way.
        next = m_delayQueue.begin();
    }
}

bool SoSensorManager::isTimerSensorPending(SbTime& triggerTime) const
{
    if (m_timerQueue.empty())
        return false;
    triggerTime = (*m_timerQueue.begin())->getTriggerTime();
    return true;
}

void SoSensor::trigger()
{
    unschedule();
    if (m_function)
        m_function(m_data, this);
}

SoDelayQueueSensor::~SoDelayQueueSensor()
{
    SoDelayQueueSensor::unschedule();
}

void SoDelayQueueSensor::setPriority(std::uint32_t priority)
{
    const bool waiting = isScheduled();
    unschedule();
    m_priority = priority;
    if (waiting)
        schedule();
}

void SoDelayQueueSensor::schedule()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    SoDB::getSensorManager().insert(this);
}

void SoDelayQueueSensor::unschedule()
{
    if (!m_scheduled)
        return;
    SoDB::getSensorManager().remove(this);
    m_scheduled = false;
}

SoTimerQueueSensor::~SoTimerQueueSensor()
{
    SoTimerQueueSensor::unschedule();
}

void SoTimerQueueSensor::scheduleAt(SbTime time)
{
    unschedule();
    m_triggerTime = time;
    m_scheduled = true;
    SoDB::getSensorManager().insert(this);
}

void SoTimerQueueSensor::unschedule()
{
    if (!m_scheduled)
        return;
    SoDB::getSensorManager().remove(this);
    m_scheduled = false;
}

void SoAlarmSensor::setTimeFromNow(SbTime delay)
{
    setTime(SbTime::getTimeOfDay() + delay);
}

void SoTimerSensor::setBaseTime(SbTime time)
{
    m_baseTime = time;
    m_hasBaseTime = true;
}

void SoTimerSensor::setInterval(SbTime interval)
{
    if (interval.getValue() > 0)
        m_interval = interval;
}

void SoTimerSensor::schedule()
{
    if (isScheduled())
        return;
    if (!m_hasBaseTime)
        m_baseTime = SbTime::getTimeOfDay();
    scheduleNext();
}

void SoTimerSensor::scheduleNext()
{
    const double passed = (SbTime::getTimeOfDay() - m_baseTime).getValue() / m_interval.getValue();
    scheduleAt(m_baseTime + m_interval * (std::floor(passed) + 1));
}

void SoTimerSensor::trigger()
{
    unschedule();
    // Waiting again before the callback, which may unschedule the timer for good.
    scheduleNext();
    if (SoSensorCB function = getFunction())
        function(getData(), this);
}
