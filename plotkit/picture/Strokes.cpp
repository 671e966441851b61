#include "Strokes.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/** Millimetres of stroke and gap in which no eye sees the gap. */
constexpr double Least_period = 0.02;

} // namespace

std::vector<Strokes::Line> Strokes::dashed(const Line& line, const std::vector<double>& dashes)
{
    const bool isDashed = dashes.size() > 1 && std::accumulate(dashes.begin(), dashes.end(), 0.0) > Least_period &&
                          *std::min_element(dashes.begin(), dashes.end()) >= 0;
    if (!isDashed || line.size() < 2)
        return {line};
    std::vector<Line> strokes{Line{line.front()}};
    std::size_t dash = 0;
    double rest = dashes[0];
    for (std::size_t i = 1; i < line.size(); ++i) {
        const PagePoint& from = line[i - 1];
        const PagePoint& to = line[i];
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        double done = 0;
        while (length - done > rest) {
            done += rest;
            const PagePoint at{from.x + (to.x - from.x) * done / length, from.y + (to.y - from.y) * done / length};
            if (dash % 2 == 0)
                strokes.back().push_back(at);
            else
                strokes.push_back(Line{at});
            dash = (dash + 1) % dashes.size();
            rest = dashes[dash];
        }
        rest -= length - done;
        if (dash % 2 == 0)
            strokes.back().push_back(to);
    }
    if (strokes.back().size() < 2)
        strokes.pop_back();
    return strokes;
}

std::vector<Strokes::Line> Strokes::split(const Line& line, std::size_t mostPoints)
{
    std::vector<Line> parts;
    for (std::size_t first = 0; first + 1 < line.size(); first += mostPoints - 1) {
        const std::size_t end = std::min(first + mostPoints, line.size());
        parts.emplace_back(line.begin() + std::ptrdiff_t(first), line.begin() + std::ptrdiff_t(end));
    }
    return parts;
}
