#pragma once

#include <nodescope/NodescopeApi.h>

class QString;
class SoNodescopeState;

/** Knows the states of the panels by name, and makes one of them current: at most one has the shared actions. */
class NODESCOPE_API SoNodescopeStateManager {
public:
    SoNodescopeStateManager() = delete;

    /** Forgets all states. To be called before the panels of a main window register theirs. */
    static void init();
    /** The state is not owned, and may be deleted at any time. It takes the place of one with the same name. */
    static void registerState(const QString& name, SoNodescopeState* state);
    /** Deactivates the current state and activates the named one; nothing when that is current. A name that is not
     * known leaves none current, and says so on standard output. */
    static void setCurrentState(const QString& name);
    /** Name of the current state; empty: none. */
    static QString currentState();
};
