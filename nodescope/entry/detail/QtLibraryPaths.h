#pragma once

#include <nodescope/NodescopeApi.h>

class SbString;

/**
 * Makes Qt find its plug-ins when the inspector brings its own application object: in `defaultPath`, or in the folder
 * "qtplugins" beside the toolkit. Does nothing where Qt was told by other means: an application object, a "qt.conf" in
 * the current folder, or the preference QT_QPA_PLATFORM_PLUGIN_PATH.
 */
NODESCOPE_API void setupQtLibraryPaths(const SbString& defaultPath);
