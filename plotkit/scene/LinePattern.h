#pragma once

#include <plotkit/PlotkitApi.h>

#include <vector>

/** The patterns of lines: 16 bits, each for a piece of a line, seen where it is set. */
namespace LinePattern {

/** Lengths of strokes and gaps in turns, beginning with a stroke, in pieces; empty for a line without gaps. The pattern
 * is not 0. */
PLOTKIT_API std::vector<double> dashes(unsigned pattern);

} // namespace LinePattern
