#pragma once

#include <plotkit/PlotkitApi.h>

#include <cstdint>
#include <vector>

/** How often each symbol of a dynamic context has come: the adaptive histogram of ECMA-363. Symbol 0 is the escape. */
class PLOTKIT_API U3DHistogram {
public:
    U3DHistogram();

    std::uint32_t total() const { return m_total; }
    std::uint32_t count(std::uint32_t symbol) const { return symbol < m_counts.size() ? m_counts[symbol] : 0; }
    /** How often all symbols below this one have come. */
    std::uint32_t below(std::uint32_t symbol) const;
    /** Symbols beyond 16 bits are never learnt. When the total has grown large, all counts are halved first. */
    void add(std::uint32_t symbol);

private:
    void resize(std::size_t size);
    void halve();
    void rebuild();

    std::vector<std::uint32_t> m_counts;
    std::vector<std::uint32_t> m_sums; ///< tree of partial sums; entry i ends with symbol i - 1
    std::uint32_t m_total = 0;
};
