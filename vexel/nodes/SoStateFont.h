#pragma once

#include <vexel/base/VexelApi.h>

class QFont;
class SoState;

/** The font that texts have at this place of the graph, in no particular size; the size is SoStateValues::fontSize. */
VEXEL_API QFont soStateFont(const SoState& state);
