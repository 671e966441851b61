#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/u3d/U3DHistogram.h>

#include <cstdint>
#include <string_view>
#include <vector>

using U3DBytes = std::vector<std::uint8_t>;

/**
 * The data of a block as ECMA-363 codes them: plain values, and compressed ones in contexts, all by one arithmetic
 * coder. Until something compressed is put, plain values come out as their bytes, the lowest first.
 */
class PLOTKIT_API U3DBitStream {
public:
    void putU8(std::uint8_t value);
    void putU16(std::uint16_t value);
    void putU32(std::uint32_t value);
    void putU64(std::uint64_t value);
    void putF32(float value);
    /** Length in 16 bits, and UTF-8; what is longer is cut. */
    void putString(std::string_view text);

    /** A dynamic context, from 1 to 0x400, learns how often each value comes; values are below 0xFFFFFFFF. */
    void putDynamic(std::uint32_t context, std::uint32_t value);
    /** The same for values whose plain form has 8 bits. */
    void putDynamicU8(std::uint32_t context, std::uint8_t value);
    /** A static context: each value below @p range, which is not 0, is as likely as the others. */
    void putBelow(std::uint32_t range, std::uint32_t value);

    /** The data, with the bits that are due. The stream must not be used any more. */
    U3DBytes finish();

private:
    bool putLearnt(std::uint32_t context, std::uint32_t value);
    void narrow(std::uint32_t from, std::uint32_t to);
    void encode(std::uint32_t below, std::uint32_t count, std::uint32_t total);
    void putBits(std::uint32_t bits, unsigned num);

    U3DBytes m_bytes;
    std::uint64_t m_bits = 0; ///< not yet in m_bytes, the first one lowest
    unsigned m_numBits = 0;
    std::uint32_t m_low = 0;
    std::uint32_t m_high = 0xFFFF;
    std::uint32_t m_numPending = 0; ///< bits that are the opposite of the next one
    bool m_isCompressed = false;
    std::vector<U3DHistogram> m_histograms; ///< by their contexts
};
