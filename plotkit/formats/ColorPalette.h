#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/picture/InkColor.h>

#include <cstddef>
#include <unordered_map>
#include <vector>

/** The colours of a picture, reduced to a number of them by cutting their cube where it matters most. */
class PLOTKIT_API ColorPalette {
public:
    /** A use of a colour, for an area; lines have little of it, and count too. */
    void add(const InkColor& color, double area) { m_areas[color.packed()] += area + Least_area; }
    /** Finds at most so many colours, at least 1, that stand for all that were added. */
    void reduce(std::size_t mostColors);

    /** After reduce(). */
    ///@{
    const std::vector<InkColor>& colors() const { return m_colors; }
    /** Place among the colours of what stands for a colour that was added. */
    std::size_t placeOf(const InkColor& color) const { return m_places.at(color.packed()); }
    ///@}

private:
    static constexpr double Least_area = 0.01;

    std::unordered_map<std::uint32_t, double> m_areas;
    std::unordered_map<std::uint32_t, std::size_t> m_places;
    std::vector<InkColor> m_colors;
};
