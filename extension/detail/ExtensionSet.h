#pragma once

#include "Configuration.h"
#include "PluginLibrary.h"

#include <map>

class NscExtension;
class PluginProblems;

/** The plug-ins and their extensions: makes, connects, activates and owns them. */
class ExtensionSet {
public:
    explicit ExtensionSet(PluginProblems& problems) : m_problems(problems) {}
    /** Deletes the extensions, the last created first, which is one that controls before those that it controls; then
     * the plug-ins, in the same way. */
    ~ExtensionSet();
    ExtensionSet(const ExtensionSet&) = delete;
    ExtensionSet& operator=(const ExtensionSet&) = delete;

    void loadLibrary(const QString& name);
    /** Creates and activates extensions that are not there yet, each after those that it controls. */
    void create(const std::vector<Configuration::Active>& active);

private:
    using Key = std::pair<QString, QString>;

    /** An extension that is to be made. */
    struct Wanted {
        Configuration::Name name;
        std::vector<Wanted*> controlled;
        std::size_t next = 0; ///< the controlled one whose turn it is
        enum { New, Begun, Done } state = New;
    };

    void createAfterControlled(Wanted& wanted);
    void createOne(const Wanted& wanted);
    NscPlugin* findPlugin(const QString& name);

    PluginProblems& m_problems;
    std::vector<PluginLibrary> m_libraries;
    std::map<QString, NscPlugin*> m_plugins; ///< null: asked for and not there
    std::vector<std::unique_ptr<NscExtension>> m_extensions;
    std::map<Key, NscExtension*> m_byName; ///< null: cannot be made
    bool m_lacksLibrary = false;
};
