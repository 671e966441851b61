#pragma once

#include <QObject>

class MessagePanel;
class QDockWidget;
class SoNodescopeMainFrame;

/** The dock of the messages: hidden until there is one, and then shown once by itself. Belongs to the main window. */
class MessageDock : public QObject {
    Q_OBJECT
public:
    /** Adds the dock as a tab beside the field watch. */
    explicit MessageDock(SoNodescopeMainFrame& frame);

    /** The window is complete: shows what there is. @param problems  how many there are with plug-ins */
    void begin(int problems);

private:
    void showOnce();

    SoNodescopeMainFrame& m_frame;
    MessagePanel* m_panel;
    QDockWidget* m_dock;
    bool m_wasShown = false;
};
