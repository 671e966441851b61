#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

/** Vectors of @p Size floats, each of which is kept once. */
template <class Vec, int Size>
class U3DUniqueValues {
public:
    /** The index of the value, which is added when it is new. */
    std::uint32_t add(Vec value)
    {
        for (int i = 0; i < Size; ++i)
            value[i] += 0.0f; // there is no -0
        if (m_values.size() * 2 >= m_slots.size())
            grow();
        std::uint32_t& slot = slotOf(value);
        if (slot == Free) {
            slot = std::uint32_t(m_values.size());
            m_values.push_back(value);
        }
        return slot;
    }

    std::vector<Vec> take() { return std::move(m_values); }

private:
    static constexpr std::uint32_t Free = 0xFFFFFFFF;

    std::uint32_t& slotOf(const Vec& value)
    {
        std::uint64_t hash = Size;
        for (int i = 0; i < Size; ++i) {
            std::uint32_t bits = 0;
            std::memcpy(&bits, &value[i], sizeof bits);
            hash = (hash ^ bits) * 0x9e3779b97f4a7c15u;
            hash ^= hash >> 29;
        }
        const std::size_t mask = m_slots.size() - 1;
        std::size_t at = std::size_t(hash) & mask;
        while (m_slots[at] != Free && m_values[m_slots[at]] != value)
            at = (at + 1) & mask;
        return m_slots[at];
    }

    void grow()
    {
        m_slots.assign(std::max<std::size_t>(m_slots.size() * 2, 64), Free);
        for (std::size_t i = 0; i < m_values.size(); ++i)
            slotOf(m_values[i]) = std::uint32_t(i);
    }

    std::vector<Vec> m_values;
    std::vector<std::uint32_t> m_slots; ///< a power of two
};
