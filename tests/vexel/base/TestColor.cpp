#include <vexel/base/SbColor.h>
#include <vexel/base/SbColorRGBA.h>

#include <gtest/gtest.h>

#include <cmath>

TEST(Color, HsvOfKnownColors)
{
    struct Row {
        SbColor rgb;
        SbVec3f hsv;
    };
    const Row rows[] = {
        {{1, 0, 0}, {0, 1, 1}},
        {{1, 1, 0}, {1 / 6.0f, 1, 1}},
        {{0, 1, 0}, {2 / 6.0f, 1, 1}},
        {{0, 1, 1}, {3 / 6.0f, 1, 1}},
        {{0, 0, 1}, {4 / 6.0f, 1, 1}},
        {{1, 0, 1}, {5 / 6.0f, 1, 1}},
        {{0.5f, 0.5f, 0.5f}, {0, 0, 0.5f}},
        {{0, 0, 0}, {0, 0, 0}},
        {{0.5f, 0.25f, 0.25f}, {0, 0.5f, 0.5f}},
        {{1, 0.5f, 0}, {1 / 12.0f, 1, 1}},
    };
    for (const Row& row : rows) {
        SbVec3f hsv;
        row.rgb.getHSVValue(hsv[0], hsv[1], hsv[2]);
        EXPECT_TRUE(hsv.equals(row.hsv, 1e-6f)) << row.rgb[0] << ' ' << row.rgb[1] << ' ' << row.rgb[2];
        SbColor back;
        back.setHSVValue(row.hsv[0], row.hsv[1], row.hsv[2]);
        EXPECT_TRUE(back.equals(row.rgb, 1e-6f)) << row.rgb[0] << ' ' << row.rgb[1] << ' ' << row.rgb[2];
    }
    SbColor red;
    EXPECT_EQ(red.setHSVValue(1, 1, 1), SbColor(1, 0, 0));
}

TEST(Color, HsvRoundTripOfAllHues)
{
    for (int r = 0; r <= 10; ++r)
        for (int g = 0; g <= 10; ++g)
            for (int b = 0; b <= 10; ++b) {
                const SbColor color(r / 10.0f, g / 10.0f, b / 10.0f);
                float h, s, v;
                color.getHSVValue(h, s, v);
                SbColor back;
                ASSERT_TRUE(back.setHSVValue(h, s, v).equals(color, 1e-5f)) << r << ' ' << g << ' ' << b;
            }
}

TEST(Color, Packed)
{
    EXPECT_EQ(SbColor(1, 0, 0.2f).getPackedValue(), 0xff0033ffu);
    EXPECT_EQ(SbColor(1, 0, 0.2f).getPackedValue(1), 0xff003300u);
    EXPECT_EQ(SbColor(2, -1, NAN).getPackedValue(), 0xff0000ffu);
    SbColor color;
    float transparency;
    color.setPackedValue(0x00ff3300, transparency);
    EXPECT_TRUE(color.equals(SbColor(0, 1, 0.2f), 1e-6f));
    EXPECT_EQ(transparency, 1);
}

TEST(Color, PackedRoundTripOfEveryLevel)
{
    for (std::uint32_t level = 0; level < 256; ++level) {
        const std::uint32_t packed = level << 24 | (255 - level) << 16 | level << 8 | level;
        ASSERT_EQ(SbColorRGBA().setPackedValue(packed).getPackedValue(), packed);
    }
}

TEST(Color, WithAndWithoutAlpha)
{
    const SbColorRGBA color(SbColor(0.1f, 0.2f, 0.3f), 0.4f);
    EXPECT_EQ(color, SbColorRGBA(0.1f, 0.2f, 0.3f, 0.4f));
    EXPECT_EQ(color.getRGB(), SbColor(0.1f, 0.2f, 0.3f));
    const SbColor mixed = 0.5f * SbColor(1, 0, 0) + 0.5f * SbColor(0, 0, 1);
    EXPECT_EQ(mixed, SbColor(0.5f, 0, 0.5f));
    EXPECT_EQ(sizeof(SbColor), 12u);
    EXPECT_EQ(sizeof(SbColorRGBA), 16u);
}
