#pragma once

#include <extension/ExtensionApi.h>

class NscExtension;
class SbString;

/**
 * Version of the interface between inspector and plug-ins: the headers of this folder and of the toolkit. It is raised
 * with each change after which a plug-in compiled before would no longer work: another order or number of virtual
 * functions, another layout of a class, a function that is gone. A plug-in of another version is refused.
 */
constexpr int Nsc_interface_version = 1;

/** A plug-in library: makes extensions by name. Exactly one class of the library is named in NSC_PLUGIN. */
class NSC_API NscPlugin {
public:
    NscPlugin() = default;
    NscPlugin(const NscPlugin&) = delete;
    NscPlugin& operator=(const NscPlugin&) = delete;
    virtual ~NscPlugin() = default;

    /** Name by which the configuration speaks of the plug-in; need not be the name of its library. */
    virtual SbString getName() const = 0;
    /** A new extension, which the caller owns; null for a name that the plug-in does not know. What it throws is
     * reported, and the extension is missing. */
    virtual NscExtension* createExtension(const SbString& name) = 0;
};

/** Makes a library a plug-in: `NSC_PLUGIN(MyPlugin)` in one of its source files. */
#define NSC_PLUGIN(Class)                                                                                              \
    extern "C" {                                                                                                       \
    extern NSC_API const int nscPluginInterfaceVersion;                                                                \
    const int nscPluginInterfaceVersion = Nsc_interface_version;                                                       \
    NSC_API NscPlugin* nscCreatePlugin();                                                                              \
    }                                                                                                                  \
    NscPlugin* nscCreatePlugin()                                                                                       \
    {                                                                                                                  \
        return new Class;                                                                                              \
    }
