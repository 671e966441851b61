#include <extension/NscPlugin.h>

#include <cstdlib>

// A library that does not say which version of the interface it is made for.

extern "C" NSC_API NscPlugin* nscCreatePlugin();

NscPlugin* nscCreatePlugin()
{
    std::abort();
}
