#include <vexel/base/SoPreferences.h>

// Counts its calls where the test can see them.

static void count(const char* name)
{
    SoPreferences::setValue(name, SbString(SoPreferences::getInt(name, 0) + 1));
}

extern "C" VEXEL_API void spnInitModule()
{
    count("TEST_MODULE_INITS");
}

extern "C" VEXEL_API void spnFinishModule()
{
    count("TEST_MODULE_FINISHES");
}
