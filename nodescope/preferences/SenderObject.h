#pragma once

#include <QObject>

/** Asks one receiver to load its page, through a connection to a slot that is known by name only. */
class SenderObject : public QObject {
    Q_OBJECT
signals:
    void initSignal();
};
