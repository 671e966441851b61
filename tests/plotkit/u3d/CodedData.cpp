#include "CodedData.h"

#include <cstring>
#include <stdexcept>

namespace {

std::uint32_t sumOf(const std::map<std::uint32_t, std::uint32_t>& counts)
{
    std::uint32_t sum = 0;
    for (const auto& [symbol, count] : counts)
        sum += count;
    return sum;
}

} // namespace

std::uint32_t CodedData::bit(std::size_t position) const
{
    const std::size_t byte = position / 8;
    return byte < m_size ? (m_bytes[byte] >> (position % 8)) & 1u : 0u;
}

std::uint32_t CodedData::decode(std::uint32_t total, const std::function<Symbol(std::uint32_t)>& find)
{
    std::uint32_t code = bit(m_position);
    for (std::size_t i = 0; i < 15; ++i)
        code = code * 2 + bit(m_position + 1 + m_under + i);
    const std::uint32_t range = m_high + 1 - m_low;
    if (code < m_low || code > m_high)
        throw std::runtime_error("the code is outside of its range");
    const Symbol symbol = find((total * (code - m_low + 1) - 1) / range);
    m_high = m_low + range * (symbol.below + symbol.count) / total - 1;
    m_low = m_low + range * symbol.below / total;
    std::uint32_t used = 0;
    while (m_low / 0x8000 == m_high / 0x8000) {
        m_low = m_low % 0x8000 * 2;
        m_high = m_high % 0x8000 * 2 + 1;
        ++used;
    }
    if (used > 0) {
        used += m_under;
        m_under = 0;
    }
    while (m_low >= 0x4000 && m_high < 0xC000) {
        m_low = (m_low - 0x4000) * 2;
        m_high = (m_high - 0x4000) * 2 + 1;
        ++m_under;
    }
    m_position += used;
    return symbol.value;
}

std::uint32_t CodedData::u8()
{
    const std::uint32_t mirrored = decode(256, [](std::uint32_t target) { return Symbol{target, target, 1}; });
    std::uint32_t value = 0;
    for (unsigned i = 0; i < 8; ++i) {
        if (mirrored & (1u << i))
            value |= 0x80u >> i;
    }
    return value;
}

std::uint32_t CodedData::u16()
{
    const std::uint32_t low = u8();
    return low + 0x100 * u8();
}

std::uint32_t CodedData::u32()
{
    const std::uint32_t low = u16();
    return low + 0x10000 * u16();
}

std::uint64_t CodedData::u64()
{
    const std::uint64_t low = u32();
    return low + 0x100000000 * u32();
}

float CodedData::f32()
{
    const std::uint32_t bits = u32();
    float value = 0;
    std::memcpy(&value, &bits, 4);
    return value;
}

std::string CodedData::string()
{
    std::string text(u16(), ' ');
    for (char& c : text)
        c = char(u8());
    return text;
}

void CodedData::learn(Counts& counts, std::uint32_t symbol)
{
    if (symbol > 0xFFFF)
        return;
    if (sumOf(counts) >= 0x1FFF) {
        for (auto it = counts.begin(); it != counts.end();) {
            it->second /= 2;
            it = it->second == 0 && it->first != 0 ? counts.erase(it) : std::next(it);
        }
        ++counts[0];
    }
    ++counts[symbol];
}

std::uint32_t CodedData::compressed(std::uint32_t context, const std::function<std::uint32_t()>& plain)
{
    if (context == 0 || context >= 0x43FF)
        return plain();
    if (context > 0x400)
        return decode(context - 0x400, [](std::uint32_t target) { return Symbol{target, target, 1}; });
    Counts& counts = m_contexts.try_emplace(context, Counts{{0, 1}}).first->second;
    const std::uint32_t symbol = decode(sumOf(counts), [&](std::uint32_t target) {
        std::uint32_t below = 0;
        for (const auto& [value, count] : counts) {
            if (target < below + count)
                return Symbol{value, below, count};
            below += count;
        }
        throw std::runtime_error("a symbol that never came");
    });
    learn(counts, symbol);
    if (symbol > 0)
        return symbol - 1;
    const std::uint32_t value = plain();
    learn(counts, value + 1);
    return value;
}

std::uint32_t CodedData::c32(std::uint32_t context)
{
    return compressed(context, [this] { return u32(); });
}

std::uint32_t CodedData::c8(std::uint32_t context)
{
    return compressed(context, [this] { return u8(); });
}
