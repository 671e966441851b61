#pragma once

#include <QObject>
#include <QTimer>

/** Works off the toolkit's sensor queues from the Qt event loop: timers when they are due, the rest when it is idle. */
class SensorPump : public QObject {
    Q_OBJECT
public:
    SensorPump();
    ~SensorPump() override;

private:
    void queuesChanged();
    void processTimers();
    void processDelayQueue();

    QTimer m_timers;
    QTimer m_idle;
};
