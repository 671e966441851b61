#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

/** Takes the data of one block apart, bit by bit as the coder of ECMA-363 prescribes. Past the end all bits are 0. */
class CodedData {
public:
    CodedData(const std::uint8_t* bytes, std::size_t size) : m_bytes(bytes), m_size(size) {}

    std::uint32_t u8();
    std::uint32_t u16();
    std::uint32_t u32();
    std::uint64_t u64();
    float f32();
    std::string string();
    /** A compressed value of 32 or 8 bits in a context, whose number tells its kind. */
    std::uint32_t c32(std::uint32_t context);
    std::uint32_t c8(std::uint32_t context);

    /** Bits that nothing has been read from; negative past the end. */
    long numLeft() const { return long(m_size) * 8 - long(m_position); }
    std::size_t bytePosition() const { return m_position / 8; }

private:
    struct Symbol {
        std::uint32_t value, below, count;
    };
    using Counts = std::map<std::uint32_t, std::uint32_t>;

    std::uint32_t bit(std::size_t position) const;
    std::uint32_t decode(std::uint32_t total, const std::function<Symbol(std::uint32_t)>& find);
    std::uint32_t compressed(std::uint32_t context, const std::function<std::uint32_t()>& plain);
    static void learn(Counts& counts, std::uint32_t symbol);

    const std::uint8_t* m_bytes;
    std::size_t m_size;
    std::size_t m_position = 0;
    std::uint32_t m_low = 0;
    std::uint32_t m_high = 0xFFFF;
    std::uint32_t m_under = 0;
    std::map<std::uint32_t, Counts> m_contexts;
};
