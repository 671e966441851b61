#pragma once

#include <nodescope/NodescopeApi.h>

class SoError;

/** Handler of critical toolkit errors: lets the user go on, leave, or read the call stack and leave. Leaving ends the
 * process with status 1. */
NODESCOPE_API void criticalErrorHandler(const SoError* error, void* userData);
