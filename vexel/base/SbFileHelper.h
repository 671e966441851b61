#pragma once

#include <vexel/base/VexelApi.h>

class SbString;

/** Functions on file names. Names use '/' between folders; nothing here reads a file's content. */
class VEXEL_API SbFileHelper {
public:
    SbFileHelper() = delete;

    enum AccessMode { EXISTS, READ, WRITE, READ_WRITE };

    /** The folder part with its last '/', so that a file name can be appended; empty when there is none. */
    static SbString getDirName(const SbString& path);
    /** What follows the last '/', by choice without its extension. */
    static SbString getBaseName(const SbString& path, bool withExtension = true);
    /** What follows the last '.' of the file's name, without the dot; a dot in front makes no extension. */
    static SbString getExtension(const SbString& path);

    /** Turns '\\' into '/'. */
    static SbString toUnixPath(const SbString& path);
    static bool isAbsolute(const SbString& path);
    /** Absolute path without "." and ".." parts; relative ones start at the current directory. */
    static SbString getFullPath(const SbString& path);

    /** True when the file or folder can be used so by this process; an empty path never can. */
    static bool isAccessible(const SbString& path, AccessMode mode = EXISTS);

    /**
     * Replaces $NAME and ${NAME} by the preference of that name (see SoPreferences, which also sees the environment).
     * A reference to an unknown name, one without its closing brace and a single '$' stay as they are, so that
     * the mistake shows in the path. The inserted values are not expanded again.
     */
    static SbString expandString(const SbString& text);
};
