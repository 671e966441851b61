#pragma once

#include <QTimer>

class QEvent;
class SoQtRenderArea;

/**
 * Opens the inspector on a render area when Shift+F12 is pressed in it, serves it while it runs, and passes clicks on
 * to it. A program needs to know nothing of the inspector for that, nor has it to be installed.
 */
class InspectorHook : public QObject {
public:
    explicit InspectorHook(SoQtRenderArea& area);
    /** Ends an inspection that it opened. */
    ~InspectorHook() override;

    /** True for an event of the area's GL widget that nobody else is to get. */
    bool handleEvent(const QEvent& event);

private:
    void start();
    void serve();

    SoQtRenderArea& m_area;
    QTimer m_service; ///< runs as long as the inspection that was opened here
};
