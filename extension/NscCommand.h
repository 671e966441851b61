#pragma once

#include <extension/ExtensionApi.h>

/**
 * A change that the user can undo. The inspector's history owns the commands given to it: it calls execute() once when
 * a command is added, then undo() and redo() in turns, and deletes the command when it can no longer be reached.
 */
class NSC_API NscCommand {
public:
    NscCommand() = default;
    NscCommand(const NscCommand&) = delete;
    NscCommand& operator=(const NscCommand&) = delete;
    virtual ~NscCommand() = default;

    /** Makes the change; answers whether it was made. A command that made it before it was added does nothing here. */
    virtual bool execute() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
};
