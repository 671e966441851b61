#include "VisibleLines.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double Least_part = 1e-6;
constexpr int Most_cells = 512; ///< in a row

struct Line {
    PagePoint begin, end;
    double beginDepth, endDepth;
};

/** Narrows a part of a line to where a quantity, given at both ends of the whole, is positive. */
void narrow(VisibleLines::Part& part, double atBegin, double atEnd)
{
    if (atBegin <= 0 && atEnd <= 0) {
        part.to = part.from;
    } else if (atBegin < 0) {
        part.from = std::max(part.from, atBegin / (atBegin - atEnd));
    } else if (atEnd < 0) {
        part.to = std::min(part.to, atBegin / (atBegin - atEnd));
    }
}

/** The part of a line that a triangle hides; empty when its end is not behind its begin. */
VisibleLines::Part hiddenPart(const Line& line, const SurfaceTriangle& triangle)
{
    VisibleLines::Part part{0, 1};
    for (std::size_t edge = 0; edge < 3 && part.from < part.to; ++edge) {
        const Linear& inside = triangle.insides[edge];
        narrow(part, inside.at(line.begin), inside.at(line.end));
    }
    narrow(part, line.beginDepth - triangle.depth.at(line.begin) - Same_depth,
           line.endDepth - triangle.depth.at(line.end) - Same_depth);
    return part;
}

} // namespace

VisibleLines::VisibleLines(const std::vector<SurfaceTriangle>& triangles) : m_triangles(triangles)
{
    double right = triangles.empty() ? 0 : triangles[0].right;
    double top = triangles.empty() ? 0 : triangles[0].top;
    m_left = triangles.empty() ? 0 : triangles[0].left;
    m_bottom = triangles.empty() ? 0 : triangles[0].bottom;
    for (const SurfaceTriangle& triangle : triangles) {
        m_left = std::min(m_left, triangle.left);
        m_bottom = std::min(m_bottom, triangle.bottom);
        right = std::max(right, triangle.right);
        top = std::max(top, triangle.top);
    }
    m_size = std::clamp(int(std::sqrt(double(triangles.size()))), 1, Most_cells);
    m_cellWidth = std::max((right - m_left) / m_size, 1e-9);
    m_cellHeight = std::max((top - m_bottom) / m_size, 1e-9);
    m_cells.resize(std::size_t(m_size) * std::size_t(m_size));
    for (std::size_t i = 0; i < triangles.size(); ++i) {
        if (!triangles[i].isOpaque)
            continue;
        const SurfaceTriangle& each = triangles[i];
        for (int y = row(each.bottom); y <= row(each.top); ++y) {
            for (int x = column(each.left); x <= column(each.right); ++x)
                m_cells[std::size_t(y) * std::size_t(m_size) + std::size_t(x)].push_back(std::uint32_t(i));
        }
    }
}

int VisibleLines::column(double x) const
{
    return std::clamp(int(std::floor((x - m_left) / m_cellWidth)), 0, m_size - 1);
}

int VisibleLines::row(double y) const
{
    return std::clamp(int(std::floor((y - m_bottom) / m_cellHeight)), 0, m_size - 1);
}

const std::vector<std::uint32_t>& VisibleLines::cell(int column, int row) const
{
    return m_cells[std::size_t(row) * std::size_t(m_size) + std::size_t(column)];
}

std::vector<VisibleLines::Part> VisibleLines::visibleParts(const PagePoint& begin, const PagePoint& end,
                                                           double beginDepth, double endDepth) const
{
    const Line line{begin, end, beginDepth, endDepth};
    std::vector<Part> hidden;
    const int firstRow = row(std::min(begin.y, end.y));
    const int lastRow = row(std::max(begin.y, end.y));
    for (int y = firstRow; y <= lastRow; ++y) {
        Part inRow{0, 1};
        if (firstRow < lastRow) {
            const double low = m_bottom + y * m_cellHeight;
            if (y > firstRow)
                narrow(inRow, begin.y - low, end.y - low);
            if (y < lastRow)
                narrow(inRow, low + m_cellHeight - begin.y, low + m_cellHeight - end.y);
        }
        const double x0 = begin.x + (end.x - begin.x) * inRow.from;
        const double x1 = begin.x + (end.x - begin.x) * inRow.to;
        for (int x = column(std::min(x0, x1)); x <= column(std::max(x0, x1)); ++x) {
            for (const std::uint32_t index : cell(x, y)) {
                const Part part = hiddenPart(line, m_triangles[index]);
                if (part.to > part.from)
                    hidden.push_back(part);
            }
        }
    }
    std::sort(hidden.begin(), hidden.end(), [](const Part& a, const Part& b) { return a.from < b.from; });
    std::vector<Part> visible;
    double seenFrom = 0;
    for (const Part& part : hidden) {
        if (part.from - seenFrom > Least_part)
            visible.push_back({seenFrom, part.from});
        seenFrom = std::max(seenFrom, part.to);
    }
    if (1 - seenFrom > Least_part)
        visible.push_back({seenFrom, 1});
    return visible;
}

bool VisibleLines::isVisible(const PagePoint& point, double depth) const
{
    const std::vector<std::uint32_t>& candidates = cell(column(point.x), row(point.y));
    return std::none_of(candidates.begin(), candidates.end(), [&](std::uint32_t index) {
        const SurfaceTriangle& triangle = m_triangles[index];
        for (std::size_t edge = 0; edge < 3; ++edge) {
            if (triangle.insides[edge].at(point) < 0)
                return false;
        }
        return depth - triangle.depth.at(point) > Same_depth;
    });
}
