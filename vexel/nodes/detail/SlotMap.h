#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <vector>

/**
 * A number for each coordinate that a shape uses. Many shapes may share a long list of coordinates and use a few each,
 * so a table as long as that list is made only when the shape uses a good part of it.
 */
class SlotMap {
public:
    static constexpr std::uint32_t None = std::numeric_limits<std::uint32_t>::max();

    SlotMap(std::size_t numCoordinates, std::size_t numUses) : m_isTable(numUses * 4 >= numCoordinates)
    {
        if (m_isTable)
            m_table.assign(numCoordinates, None);
    }

    /** The number of a coordinate, None at first. */
    std::uint32_t& operator[](int coordinate)
    {
        if (m_isTable)
            return m_table[static_cast<std::size_t>(coordinate)];
        return m_hash.try_emplace(coordinate, None).first->second;
    }

private:
    bool m_isTable;
    std::vector<std::uint32_t> m_table;
    std::unordered_map<int, std::uint32_t> m_hash;
};
