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
    /** Deletes the extensions, each before those that it controls, then the plug-ins. The libraries stay in memory:
     * types that they registered with the toolkit live as long as the process. */
    static void releaseInstance();

    NscPluginsManager(const NscPluginsManager&) = delete;
    NscPluginsManager& operator=(const NscPluginsManager&) = delete;

    /**
     * Loads the libraries of a configuration and creates and activates the extensions of its default profile, each
     * after those that it controls. An extension that is named twice is created once.
     *
     * A library is looked for in the folders of the preference VXL_NODESCOPE_PLUGIN_PATH, which are separated by ':'
     * and may refer to the environment, in $VXLHOME/plugins/nodescope, in the folder nodescope/ beside the library of
     * this class, and where SoDynamicLibManager::loadLibrary() looks for a name.
     *
     * What a plug-in throws does not leave this function: the extension is deleted and the others are loaded.
     * @param pathOrText  XML file, or (not `isFile`) the XML text itself
     * @return false when something is missing or wrong: all of it is one SoDebugError, and the rest is loaded
     */
    bool read(const SbString& pathOrText, bool isFile);

    /** What was missing or wrong in all that was read; each is one line of what was posted. */
    const std::vector<SbString>& getProblems() const;

private:
    struct Plugins;

    NscPluginsManager();
    ~NscPluginsManager();

    std::unique_ptr<Plugins> m_plugins;
};
