#pragma once

class SbString;

/**
 * Optional modules of the toolkit: shared libraries found by name (see SoDynamicLibManager::loadLibrary).
 *
 * A module exports two functions with C linkage, `void spnInitModule()` and `void spnFinishModule()`. GUI thread only.
 */
class __attribute__((visibility("default"))) SpnSymTool {
public:
    SpnSymTool() = delete;

    /** Loads and starts a module, once. False when there is no such library, which is no error, or when it cannot be
     * used, which is posted as a SoDebugError. */
    static bool initModule(const SbString& name);
    /** Finishes and unloads a module; nothing for one that was not started. */
    static void finishModule(const SbString& name);
};
