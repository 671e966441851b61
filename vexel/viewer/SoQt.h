#pragma once

#include <vexel/base/VexelApi.h>

class QWidget;

/** Ties the toolkit to the Qt event loop: sensors and timers are worked off while it runs. */
class VEXEL_API SoQt {
public:
    SoQt() = delete;

    /** To be called once a QApplication exists; @p topWidget is the program's main window. Initialises the toolkit. */
    static void init(QWidget* topWidget);
    static QWidget* getTopLevelWidget();
    /** Shows a window and runs the event loop until the program quits. */
    static void show(QWidget* widget);
    static int mainLoop();
    /** Unties the toolkit; init() may be called again. */
    static void finish();
};
