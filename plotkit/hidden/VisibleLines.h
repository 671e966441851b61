#pragma once

#include <plotkit/hidden/SurfaceTriangle.h>

#include <cstdint>
#include <utility>
#include <vector>

/** Finds what is seen of lines and points behind opaque triangles. */
class PLOTKIT_API VisibleLines {
public:
    /** A part of a line, from 0 at its begin to 1 at its end. */
    struct Part {
        double from;
        double to;
    };

    /** The triangles are not copied. */
    explicit VisibleLines(const std::vector<SurfaceTriangle>& triangles);

    /** The parts in sight, in their order along the line; depths of its two ends. */
    std::vector<Part> visibleParts(const PagePoint& begin, const PagePoint& end, double beginDepth,
                                   double endDepth) const;
    bool isVisible(const PagePoint& point, double depth) const;

private:
    int column(double x) const;
    int row(double y) const;
    const std::vector<std::uint32_t>& cell(int column, int row) const;

    const std::vector<SurfaceTriangle>& m_triangles;
    int m_size = 1; ///< cells in a row, and in a column
    double m_left = 0;
    double m_bottom = 0;
    double m_cellWidth = 1;
    double m_cellHeight = 1;
    std::vector<std::vector<std::uint32_t>> m_cells;
};
