#include "U3DBitStream.h"

#include <array>
#include <cstring>
#include <utility>

namespace {

constexpr std::uint32_t Top = 0x8000;
/** Above this many values a static context is as good as none. */
constexpr std::uint32_t Largest_range = 0x3FFE;

constexpr std::array<std::uint8_t, 256> makeMirrored()
{
    std::array<std::uint8_t, 256> mirrored{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        unsigned turned = 0;
        for (unsigned bit = 0; bit < 8; ++bit)
            turned |= ((byte >> bit) & 1u) << (7 - bit);
        mirrored[byte] = std::uint8_t(turned);
    }
    return mirrored;
}

constexpr std::array<std::uint8_t, 256> Mirrored = makeMirrored();

std::uint32_t mirrored16(std::uint32_t bits)
{
    return std::uint32_t(Mirrored[bits & 0xFF]) << 8 | Mirrored[bits >> 8];
}

/** Of a value that is not 0. */
unsigned leadingZeros16(std::uint32_t bits)
{
    return unsigned(__builtin_clz(bits)) - 16;
}

std::uint32_t lowest(unsigned num)
{
    return (1u << num) - 1;
}

} // namespace

/** Bits come lowest first; at most 16 at once. */
inline void U3DBitStream::putBits(std::uint32_t bits, unsigned num)
{
    m_bits |= std::uint64_t(bits) << m_numBits;
    m_numBits += num;
    for (; m_numBits >= 8; m_numBits -= 8) {
        m_bytes.push_back(std::uint8_t(m_bits));
        m_bits >>= 8;
    }
}

/** Goes on with a part of the present range, which is given by its begin and end in it. */
inline void U3DBitStream::narrow(std::uint32_t from, std::uint32_t to)
{
    m_high = m_low + to - 1;
    m_low += from;
    const std::uint32_t differing = m_low ^ m_high;
    if (!(differing & Top)) {
        const unsigned num = differing == 0 ? 16 : leadingZeros16(differing);
        const std::uint32_t leading = mirrored16(m_low) & lowest(num);
        if (m_numPending == 0) {
            putBits(leading, num);
        } else {
            putBits(leading & 1, 1);
            for (; m_numPending > 0; --m_numPending)
                putBits(~leading & 1, 1);
            putBits(leading >> 1, num - 1);
        }
        m_low = (m_low << num) & 0xFFFF;
        m_high = ((m_high << num) | lowest(num)) & 0xFFFF;
    }
    // From here on the bounds differ in the top bit; those that follow wait while low has 1 and high has 0.
    const unsigned num = leadingZeros16(((~(m_low & ~m_high) << 1) & 0xFFFF) | 1);
    m_low = (m_low << num) & (Top - 1);
    m_high = ((m_high << num) & (Top - 1)) | lowest(num) | Top;
    m_numPending += num;
}

void U3DBitStream::encode(std::uint32_t below, std::uint32_t count, std::uint32_t total)
{
    const std::uint32_t range = m_high - m_low + 1;
    narrow(range * below / total, range * (below + count) / total);
}

void U3DBitStream::putU8(std::uint8_t value)
{
    if (m_low == 0 && m_high == 0xFFFF && m_numPending == 0 && m_numBits == 0) {
        m_bytes.push_back(value);
        return;
    }
    // As encode() does for one of 256.
    const std::uint32_t range = m_high - m_low + 1;
    const std::uint32_t below = Mirrored[value];
    narrow(range * below / 256, range * (below + 1) / 256);
}

void U3DBitStream::putU16(std::uint16_t value)
{
    putU8(std::uint8_t(value));
    putU8(std::uint8_t(value >> 8));
}

void U3DBitStream::putU32(std::uint32_t value)
{
    putU16(std::uint16_t(value));
    putU16(std::uint16_t(value >> 16));
}

void U3DBitStream::putU64(std::uint64_t value)
{
    putU32(std::uint32_t(value));
    putU32(std::uint32_t(value >> 32));
}

void U3DBitStream::putF32(float value)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    putU32(bits);
}

void U3DBitStream::putString(std::string_view text)
{
    text = text.substr(0, 0xFFFF);
    putU16(std::uint16_t(text.size()));
    for (const char c : text)
        putU8(std::uint8_t(c));
}

/** Puts the value, or the escape when it is new; then its plain form must follow. */
bool U3DBitStream::putLearnt(std::uint32_t context, std::uint32_t value)
{
    m_isCompressed = true;
    if (m_histograms.size() <= context)
        m_histograms.resize(context + 1);
    U3DHistogram& histogram = m_histograms[context];
    const bool isKnown = histogram.count(value + 1) > 0;
    const std::uint32_t put = isKnown ? value + 1 : 0;
    encode(histogram.below(put), histogram.count(put), histogram.total());
    histogram.add(put);
    return isKnown;
}

void U3DBitStream::putDynamic(std::uint32_t context, std::uint32_t value)
{
    if (putLearnt(context, value))
        return;
    putU32(value);
    m_histograms[context].add(value + 1);
}

void U3DBitStream::putDynamicU8(std::uint32_t context, std::uint8_t value)
{
    if (putLearnt(context, value))
        return;
    putU8(value);
    m_histograms[context].add(value + 1u);
}

void U3DBitStream::putBelow(std::uint32_t range, std::uint32_t value)
{
    m_isCompressed = true;
    if (range > Largest_range)
        putU32(value);
    else
        encode(value, 1, range);
}

U3DBytes U3DBitStream::finish()
{
    if (m_isCompressed)
        putU32(0);
    if (m_numBits > 0)
        m_bytes.push_back(std::uint8_t(m_bits));
    return std::move(m_bytes);
}
