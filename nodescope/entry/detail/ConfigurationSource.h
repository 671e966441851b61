#pragma once

#include <nodescope/NodescopeApi.h>

#include <vexel/base/SbString.h>

/** Where the configuration of plug-ins and extensions comes from. */
namespace ConfigurationSource {

/** A file's path, or the configuration itself. */
struct Source {
    SbString pathOrText;
    bool isFile;
};

/** Makes the built-in configuration known to the toolkit under its name, for resolve(). */
NODESCOPE_API void registerMinimalConfiguration();
/** The file that the user names, else the one in the current folder, else the built-in configuration. */
NODESCOPE_API Source resolveConfiguration();

} // namespace ConfigurationSource
