#pragma once

#include <nodescope/NodescopeApi.h>

#include <QObject>

class QContextMenuEvent;

/** What the actions that several panels share do while one of these panels has the keyboard. */
class NODESCOPE_API SoNodescopeState : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /** Connects the shared actions to the panel and enables those that make sense there. */
    virtual void activate() = 0;
    /** Undoes all connections that activate() made. */
    virtual void deactivate() = 0;
    /** Shows the panel's menu for what is under the place of the event; ends when the menu is closed. */
    virtual void contextMenu(QContextMenuEvent* event) = 0;
};
