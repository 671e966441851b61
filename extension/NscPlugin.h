#pragma once

#include <extension/ExtensionApi.h>

class NscExtension;
class SbString;

/** A plug-in library: makes extensions by name. Exactly one class of the library is named in NSC_PLUGIN. */
class NSC_API NscPlugin {
public:
    NscPlugin() = default;
    NscPlugin(const NscPlugin&) = delete;
    NscPlugin& operator=(const NscPlugin&) = delete;
    virtual ~NscPlugin() = default;

    /** Name by which the configuration speaks of the plug-in; need not be the name of its library. */
    virtual SbString getName() const = 0;
    /** A new extension, which the caller owns; null for a name that the plug-in does not know. */
    virtual NscExtension* createExtension(const SbString& name) = 0;
};

/** Makes a library a plug-in: `NSC_PLUGIN(MyPlugin)` in one of its source files. */
#define NSC_PLUGIN(Class)                                                                                              \
    extern "C" NSC_API NscPlugin* nscCreatePlugin();                                                                   \
    NscPlugin* nscCreatePlugin()                                                                                       \
    {                                                                                                                  \
        return new Class;                                                                                              \
    }
