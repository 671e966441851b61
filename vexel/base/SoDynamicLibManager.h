#pragma once

#include <vexel/base/VexelApi.h>

class SbString;

/** Shared libraries of the process: where they are, loading more of them, and the symbols in them. */
class VEXEL_API SoDynamicLibManager {
public:
    SoDynamicLibManager() = delete;

    using Handle = void*;

    /** Absolute path of the library or program that holds the code or data at an address; empty when none does. */
    static SbString getLibraryFromSymbol(const void* address);
    /** The same for a symbol given by its (mangled) name; the first library that exports it counts. */
    static SbString getLibraryFromSymbol(const char* symbol);

    /**
     * Loads a library. A name without '/' stands for lib<name>.so, first beside the toolkit's own library and then
     * where the system looks; a name with '/' is the path of the file.
     * When that fails the answer is null, and `message`, if given, receives the reason.
     */
    static Handle loadLibrary(const SbString& name, SbString* message = nullptr);
    /** Takes back one loadLibrary(). */
    static void unloadLibrary(Handle library);

    /** Address of a symbol that the library exports, or null. */
    static void* getSymbol(Handle library, const char* symbol);
};
