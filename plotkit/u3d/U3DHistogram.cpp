#include "U3DHistogram.h"

#include <numeric>

namespace {

constexpr std::size_t First_size = 64;
constexpr std::uint32_t Largest_symbol = 0xFFFF;
constexpr std::uint32_t Largest_total = 0x1FFF;

std::size_t lowestBit(std::size_t value)
{
    return value & (~value + 1);
}

} // namespace

U3DHistogram::U3DHistogram()
{
    resize(First_size);
    add(0);
}

void U3DHistogram::resize(std::size_t size)
{
    m_counts.resize(size);
    rebuild();
}

void U3DHistogram::rebuild()
{
    m_sums.assign(m_counts.size() + 1, 0);
    for (std::size_t i = 1; i < m_sums.size(); ++i) {
        m_sums[i] += m_counts[i - 1];
        const std::size_t next = i + lowestBit(i);
        if (next < m_sums.size())
            m_sums[next] += m_sums[i];
    }
}

std::uint32_t U3DHistogram::below(std::uint32_t symbol) const
{
    std::uint32_t sum = 0;
    for (std::size_t i = symbol; i > 0; i -= lowestBit(i))
        sum += m_sums[i];
    return sum;
}

void U3DHistogram::halve()
{
    for (std::uint32_t& count : m_counts)
        count /= 2;
    ++m_counts[0];
    m_total = std::accumulate(m_counts.begin(), m_counts.end(), std::uint32_t(0));
    rebuild();
}

void U3DHistogram::add(std::uint32_t symbol)
{
    if (symbol > Largest_symbol)
        return;
    if (m_total >= Largest_total)
        halve();
    std::size_t size = m_counts.size();
    while (size <= symbol)
        size *= 2;
    if (size > m_counts.size())
        resize(size);
    ++m_counts[symbol];
    ++m_total;
    for (std::size_t i = symbol + 1; i < m_sums.size(); i += lowestBit(i))
        ++m_sums[i];
}
