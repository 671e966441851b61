#pragma once

#include <extension/ExtensionApi.h>

#include <memory>
#include <vector>

class SbString;

/**
 * Loads the plug-ins that a configuration names and owns their extensions. Created on first use, deleted with
 * releaseInstance(). GUI thread only.
 */
class NSC_API NscPluginsManager {
public:
    static NscPluginsManager* getInstance();
    /** Deletes the extensions, the last created first. The libraries stay in memory: types that they registered with
     * the toolkit live as long as the process. */
    static void releaseInstance();

    NscPluginsManager(const NscPluginsManager&) = delete;
    NscPluginsManager& operator=(const NscPluginsManager&) = delete;

    /**
     * Loads the libraries of a configuration, creates the extensions of its default profile and activates them, each
     * after those that it controls. An extension named twice is created once.
     * @param pathOrText  XML file, or (not `isFile`) the XML text itself
     * @return false when something is missing or wrong: each such thing is one SoDebugError, and the rest is loaded
     */
    bool read(const SbString& pathOrText, bool isFile);

    /** What was missing or wrong in all that was read, as posted. */
    const std::vector<SbString>& getProblems() const;

private:
    class Plugins;

    NscPluginsManager();
    ~NscPluginsManager();

    std::unique_ptr<Plugins> m_plugins;
};
