#include <extension/NscPlugin.h>

#include <cstdlib>
#include <stdexcept>

// A plug-in library of version VERSION whose entry does ENTRY.

extern "C" {
extern NSC_API const int nscPluginInterfaceVersion;
const int nscPluginInterfaceVersion = VERSION;
NSC_API NscPlugin* nscCreatePlugin();
}

NscPlugin* nscCreatePlugin()
{
    ENTRY;
}
