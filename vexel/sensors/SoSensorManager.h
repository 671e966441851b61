#pragma once

#include <cstdint>
#include <set>

#include <vexel/base/SbTime.h>
#include <vexel/base/VexelApi.h>

class SoDelayQueueSensor;
class SoTimerQueueSensor;

/**
 * The queues of scheduled sensors. The program's event loop works them off: it asks for the next timer, and processes
 * the queues when it is due or has time. SoDB::getSensorManager() answers the one of the process.
 */
class VEXEL_API SoSensorManager {
public:
    /** Called whenever a queue changed, so that the event loop can set its alarm anew. */
    void setChangedCallback(void (*function)(void* data), void* data);

    /** Triggers all timers and alarms that are due. */
    void processTimerQueue();
    /** Triggers the waiting sensors, in the order of their priority; idle sensors only when @p isIdle. */
    void processDelayQueue(bool isIdle);

    bool isDelaySensorPending() const { return !m_delayQueue.empty(); }
    /** Answers whether a timer or alarm waits, and when the first is due. */
    bool isTimerSensorPending(SbTime& triggerTime) const;

    /** How long the delay queue may wait while the program is busy; 0 for any length of time. A twelfth of a second. */
    void setDelaySensorTimeout(SbTime timeout) { m_timeout = timeout; }
    SbTime getDelaySensorTimeout() const { return m_timeout; }

private:
    friend class SoDelayQueueSensor;
    friend class SoTimerQueueSensor;

    struct DelayOrder {
        bool operator()(const SoDelayQueueSensor* a, const SoDelayQueueSensor* b) const;
    };
    struct TimerOrder {
        bool operator()(const SoTimerQueueSensor* a, const SoTimerQueueSensor* b) const;
    };

    void insert(SoDelayQueueSensor* sensor);
    void remove(SoDelayQueueSensor* sensor);
    void insert(SoTimerQueueSensor* sensor);
    void remove(SoTimerQueueSensor* sensor);
    void changed();

    std::set<SoDelayQueueSensor*, DelayOrder> m_delayQueue;
    std::set<SoTimerQueueSensor*, TimerOrder> m_timerQueue;
    std::uint64_t m_counter = 0;
    void (*m_changedFunction)(void* data) = nullptr;
    void* m_changedData = nullptr;
    SbTime m_timeout{1.0 / 12.0};
};
