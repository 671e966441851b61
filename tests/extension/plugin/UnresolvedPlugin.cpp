#include <extension/NscPlugin.h>

// A library that needs something that nobody has.

extern "C" {
NscPlugin* functionThatNobodyHas();
NSC_API NscPlugin* nscCreatePlugin();
}

NscPlugin* nscCreatePlugin()
{
    return functionThatNobodyHas();
}
