#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/picture/PageLayout.h>

#include <cstddef>
#include <vector>

/** Lines made of others. */
namespace Strokes {

using Line = std::vector<PagePoint>;

/**
 * The strokes of a dashed line.
 * @param dashes  lengths of stroke and gap in turns; when they are empty or too short to be seen, the line is solid
 */
PLOTKIT_API std::vector<Line> dashed(const Line& line, const std::vector<double>& dashes);

/** Parts of at most as many points, at least 2, each beginning where the one before ends. */
PLOTKIT_API std::vector<Line> split(const Line& line, std::size_t mostPoints);

} // namespace Strokes
