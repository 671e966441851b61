#pragma once

#include <plotkit/picture/PageLayout.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

/** Hundredths of a millimetre, or coarser units on a page too large for numbers of 16 bits. */
class PageScale {
public:
    PageScale() = default;
    explicit PageScale(const PageLayout& page)
        : m_perMillimetre(std::min(100.0, Largest / std::max({page.width, page.height, 1.0})))
    {
    }

    double perMillimetre() const { return m_perMillimetre; }
    /** Numbers out of range become those at its ends. */
    std::int16_t units(double millimetres) const
    {
        return std::int16_t(std::lround(std::clamp(millimetres * m_perMillimetre, -Largest, Largest)));
    }
    /** Of a line: at least one unit. */
    std::int16_t width(double millimetres) const { return std::max<std::int16_t>(units(millimetres), 1); }

private:
    static constexpr double Largest = 32767;

    double m_perMillimetre = 100;
};
