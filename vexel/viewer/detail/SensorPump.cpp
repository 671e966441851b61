#include <vexel/viewer/detail/SensorPump.h>

#include <vexel/io/SoDB.h>
#include <vexel/sensors/SoSensorManager.h>

#include <algorithm>

SensorPump::SensorPump()
{
    m_timers.setSingleShot(true);
    m_timers.setTimerType(Qt::PreciseTimer);
    m_idle.setSingleShot(true);
    connect(&m_timers, &QTimer::timeout, this, &SensorPump::processTimers);
    connect(&m_idle, &QTimer::timeout, this, &SensorPump::processDelayQueue);
    SoDB::getSensorManager().setChangedCallback([](void* pump) { static_cast<SensorPump*>(pump)->queuesChanged(); },
                                                this);
    queuesChanged();
}

SensorPump::~SensorPump()
{
    SoDB::getSensorManager().setChangedCallback(nullptr, nullptr);
}

void SensorPump::queuesChanged()
{
    SoSensorManager& sensors = SoDB::getSensorManager();
    SbTime due;
    if (sensors.isTimerSensorPending(due)) {
        const double wait = (due - SbTime::getTimeOfDay()).getValue() * 1000;
        m_timers.start(static_cast<int>(std::clamp(wait, 0.0, 1e6)));
    } else {
        m_timers.stop();
    }
    if (sensors.isDelaySensorPending() && !m_idle.isActive())
        m_idle.start(0);
}

void SensorPump::processTimers()
{
    SoDB::getSensorManager().processTimerQueue();
    queuesChanged();
}

void SensorPump::processDelayQueue()
{
    SoDB::getSensorManager().processDelayQueue(true);
    queuesChanged();
}
