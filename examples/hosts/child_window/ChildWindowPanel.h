#pragma once

#include <examples/hosts/scene/MovingScene.h>

#include <QTimer>
#include <QWidget>

class QPushButton;

/** The program's window: says what is in its scene, and has a button that opens the inspector on it. */
class ChildWindowPanel : public QWidget {
public:
    ChildWindowPanel();

    MovingScene& scene() { return m_scene; }
    QPushButton& inspectButton() { return *m_inspect; }

private:
    void inspect();

    MovingScene m_scene;
    QPushButton* m_inspect;
    QTimer m_changes;
    QTimer m_service;
};
