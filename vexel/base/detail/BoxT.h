#pragma once

#include <vexel/base/VexelApi.h>

#include <limits>

namespace vexel::detail {

/**
 * Everything that the axis-aligned box classes have in common; `Derived` is the public class, `Vec` its corner,
 * `Center` the real vector of as many components. A default-constructed box is empty.
 */
template <class Derived, class Vec, class Center>
class VEXEL_API BoxT {
public:
    using Component = typename Vec::Component;
    using Limits = std::numeric_limits<Component>;

    constexpr BoxT() noexcept { makeEmpty(); }
    /** A box with a corner of `max` below that of `min` is empty. */
    constexpr BoxT(const Vec& min, const Vec& max) noexcept : m_min(min), m_max(max) {}

    constexpr void setBounds(const Vec& min, const Vec& max) noexcept
    {
        m_min = min;
        m_max = max;
    }
    constexpr void getBounds(Vec& min, Vec& max) const noexcept
    {
        min = m_min;
        max = m_max;
    }
    constexpr const Vec& getMin() const noexcept { return m_min; }
    constexpr const Vec& getMax() const noexcept { return m_max; }

    constexpr void makeEmpty() noexcept
    {
        for (int i = 0; i < Vec::Size; ++i) {
            m_min[i] = Limits::max();
            m_max[i] = Limits::lowest();
        }
    }
    /** A box that is one point is not empty. */
    constexpr bool isEmpty() const noexcept
    {
        for (int i = 0; i < Vec::Size; ++i)
            if (m_max[i] < m_min[i])
                return true;
        return false;
    }

    /** Middle of the box; zero when it is empty. */
    Center getCenter() const noexcept
    {
        Center center;
        if (!isEmpty())
            for (int i = 0; i < Vec::Size; ++i)
                center[i] = static_cast<float>(0.5 * (static_cast<double>(m_min[i]) + static_cast<double>(m_max[i])));
        return center;
    }
    /** Lengths of the edges; zero when the box is empty. */
    constexpr Vec getSize() const noexcept { return isEmpty() ? Vec() : m_max - m_min; }

    /** A component that is not a number changes nothing. */
    constexpr void extendBy(const Vec& point) noexcept
    {
        for (int i = 0; i < Vec::Size; ++i) {
            m_min[i] = point[i] < m_min[i] ? point[i] : m_min[i];
            m_max[i] = point[i] > m_max[i] ? point[i] : m_max[i];
        }
    }
    constexpr void extendBy(const Derived& box) noexcept
    {
        if (!box.isEmpty()) {
            extendBy(box.m_min);
            extendBy(box.m_max);
        }
    }

    /** True when the point lies in the box or on its border. */
    constexpr bool intersect(const Vec& point) const noexcept { return intersect(Derived(point, point)); }
    /** True when the boxes have a point in common. */
    constexpr bool intersect(const Derived& box) const noexcept
    {
        if (isEmpty() || box.isEmpty())
            return false;
        for (int i = 0; i < Vec::Size; ++i)
            if (box.m_max[i] < m_min[i] || box.m_min[i] > m_max[i])
                return false;
        return true;
    }

    friend constexpr bool operator==(const Derived& a, const Derived& b) noexcept
    {
        return a.m_min == b.m_min && a.m_max == b.m_max;
    }
    friend constexpr bool operator!=(const Derived& a, const Derived& b) noexcept { return !(a == b); }

protected:
    /** Product of the edges; 0 when the box is empty. */
    constexpr double edgeProduct() const noexcept
    {
        double product = 1;
        for (int i = 0; i < Vec::Size; ++i)
            product *= static_cast<double>(m_max[i]) - static_cast<double>(m_min[i]);
        return isEmpty() ? 0 : product;
    }

private:
    Vec m_min;
    Vec m_max;
};

} // namespace vexel::detail
