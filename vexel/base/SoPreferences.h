#pragma once

#include <vexel/base/SbString.h>

/**
 * Named settings of the process. A value set by the program comes first, then the environment variable of the same
 * name, then the default that the reader passes. All functions may be called from any thread.
 */
class VEXEL_API SoPreferences {
public:
    SoPreferences() = delete;

    static SbString getString(const SbString& name, const SbString& defaultValue);
    /** Any number but 0, "true", "yes" and "on" are true; 0, "false", "no" and "off" are false; in any case of letters.
     */
    static bool getBool(const SbString& name, bool defaultValue);
    /** A value that is no number in range counts as not set, as it does for getBool() and getFloat(). */
    static int getInt(const SbString& name, int defaultValue);
    static float getFloat(const SbString& name, float defaultValue);

    /** True when the program or the environment gives a value, be it empty. */
    static bool hasValue(const SbString& name);

    static void setValue(const SbString& name, const SbString& value);
    /** Takes back setValue(), so that the environment shows again. */
    static void removeValue(const SbString& name);
};
