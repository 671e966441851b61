#pragma once

#include <QString>

#include <memory>

class NscPlugin;

/** A loaded plug-in. Its library stays in memory when this goes. */
struct PluginLibrary {
    void* handle = nullptr; ///< the same for a library that was loaded before
    QString file;           ///< the library's path
    QString name;           ///< as the plug-in calls itself
    std::unique_ptr<NscPlugin> plugin;
    QString problem; ///< why there is no plug-in; empty: there is one

    PluginLibrary();
    PluginLibrary(PluginLibrary&&) noexcept;
    ~PluginLibrary();

    /** Finds and loads a library by its name, without folder and extension. */
    static PluginLibrary load(const QString& name);
    /** Lets the library make its plug-in, if it is one for this version of the interface. */
    void makePlugin();
};
