#include "CodedData.h"

#include <plotkit/u3d/U3DBitStream.h>

#include <gtest/gtest.h>

#include <random>

namespace {

using Values = std::vector<std::uint32_t>;

std::string hexOf(const U3DBytes& bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += "0123456789abcdef"[byte / 16];
        text += "0123456789abcdef"[byte % 16];
    }
    return text;
}

std::string hexOfRange(std::uint32_t range, const Values& values)
{
    U3DBitStream stream;
    for (const std::uint32_t value : values)
        stream.putBelow(range, value);
    return hexOf(stream.finish());
}

TEST(U3DBitStream, putsPlainValuesAsTheirBytes)
{
    U3DBitStream stream;
    stream.putU8(0x12);
    stream.putU16(0x3456);
    stream.putU32(0x789abcde);
    stream.putU64(0x0123456789abcdef);
    stream.putF32(-1.5f);
    stream.putString("\u00e4b");
    EXPECT_EQ("12"
              "5634"
              "debc9a78"
              "efcdab8967452301"
              "0000c0bf"
              "0300c3a462",
              hexOf(stream.finish()));
    EXPECT_EQ("", hexOf(U3DBitStream().finish()));
}

TEST(U3DBitStream, cutsLongStrings)
{
    U3DBitStream stream;
    stream.putString(std::string(70000, 'x'));
    const U3DBytes bytes = stream.finish();
    EXPECT_EQ(2u + 65535, bytes.size());
    EXPECT_EQ(0xff, bytes[0]);
    EXPECT_EQ(0xff, bytes[1]);
}

TEST(U3DBitStream, putsOneBitForOneOfTwoAndTwoForOneOfFour)
{
    // Bits fill bytes from the lowest on; the 32 bits at the end push out what is pending.
    EXPECT_EQ("8d00000000", hexOfRange(2, {1, 0, 1, 1, 0, 0, 0, 1}));
    EXPECT_EQ("3600000000", hexOfRange(4, {1, 2, 3, 0}));
}

TEST(U3DBitStream, putsPartsOfBits)
{
    EXPECT_EQ("6ce309000000", hexOfRange(3, {0, 1, 2, 2, 1, 0}));
    EXPECT_EQ("00000000", hexOfRange(1, {0, 0, 0}));
}

TEST(U3DBitStream, holdsBitsBackWhileTheyAreNotKnown)
{
    U3DBitStream stream;
    for (int i = 0; i < 10; ++i)
        stream.putBelow(7, 3);
    stream.putBelow(9999, 4999);
    EXPECT_EQ("feffdaf6d70200000000", hexOf(stream.finish()));
}

TEST(U3DBitStream, learnsValues)
{
    U3DBitStream stream;
    stream.putDynamic(1, 7);
    stream.putDynamic(1, 7);
    EXPECT_EQ("070000005555000000", hexOf(stream.finish()));
}

TEST(U3DBitStream, mixesContexts)
{
    U3DBitStream stream;
    for (const std::uint32_t value : {5u, 5u, 6u, 5u, 70000u, 6u, 65534u, 65535u, 65535u})
        stream.putDynamic(22, value);
    for (const std::uint8_t value : {3, 3, 0})
        stream.putDynamicU8(20, value);
    stream.putBelow(16382, 16381);
    stream.putBelow(16383, 16382);
    stream.putU16(0xbeef);
    EXPECT_EQ("050000005d550000a81d3d08a0e1b11500e4ff1b00c8ff3700f0b01af1efff0300f0ee0b00000000",
              hexOf(stream.finish()));
}

TEST(U3DBitStream, halvesCountsThatHaveGrownLarge)
{
    U3DBitStream stream;
    std::uint32_t x = 1;
    for (int i = 0; i < 30000; ++i) {
        x = (x * 1103515245u + 12345u) & 0x7fffffff;
        stream.putDynamic(5, (x >> 16) % 11);
    }
    const U3DBytes bytes = stream.finish();
    std::uint32_t hash = 2166136261u;
    for (const std::uint8_t byte : bytes)
        hash = (hash ^ byte) * 16777619u;
    EXPECT_EQ(13041u, bytes.size());
    EXPECT_EQ(0x2e11b9du, hash);
}

/** One value and how it is put. */
struct Put {
    std::uint32_t kind, context, value;
};

std::vector<Put> randomPuts(std::uint32_t seed)
{
    std::mt19937 random(seed);
    const auto below = [&](std::uint32_t limit) { return std::uint32_t(random() % limit); };
    std::vector<Put> puts;
    for (std::uint32_t i = 0; i < 3000; ++i) {
        const std::uint32_t ranges[] = {1, 2, 3, 7, 256, 5000, 16382, 16383, 100000};
        const std::uint32_t range = ranges[below(9)];
        switch (const std::uint32_t kind = below(5)) {
        case 0:
            puts.push_back({kind, 0, below(256)});
            break;
        case 1:
            puts.push_back({kind, 0, std::uint32_t(random())});
            break;
        case 2:
            puts.push_back({kind, range, below(range)});
            break;
        case 3:
            puts.push_back({kind, 1 + below(3), below(4) == 0 ? below(200000) : below(5)});
            break;
        default:
            puts.push_back({kind, 20, below(8)});
        }
    }
    return puts;
}

TEST(U3DBitStream, isReadAsItWasPut)
{
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        const std::vector<Put> puts = randomPuts(seed);
        U3DBitStream stream;
        for (const auto& [kind, context, value] : puts) {
            switch (kind) {
            case 0:
                stream.putU8(std::uint8_t(value));
                break;
            case 1:
                stream.putU32(value);
                break;
            case 2:
                stream.putBelow(context, value);
                break;
            case 3:
                stream.putDynamic(context, value);
                break;
            default:
                stream.putDynamicU8(context, std::uint8_t(value));
            }
        }
        const U3DBytes bytes = stream.finish();
        CodedData data(bytes.data(), bytes.size());
        for (std::size_t i = 0; i < puts.size(); ++i) {
            const auto& [kind, context, value] = puts[i];
            const std::uint32_t read = kind == 0   ? data.u8()
                                       : kind == 1 ? data.u32()
                                       : kind == 2 ? data.c32(0x400 + context)
                                       : kind == 3 ? data.c32(context)
                                                   : data.c8(context);
            ASSERT_EQ(value, read) << seed << ": " << i;
        }
        EXPECT_GE(data.numLeft(), 0);
    }
}

} // namespace
