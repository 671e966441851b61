#include <vexel/base/SbString.h>
#include <vexel/base/SbTime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

TEST(Time, Arithmetic)
{
    EXPECT_EQ(SbTime(1.5) + SbTime(2.0), SbTime(3.5));
    EXPECT_EQ(SbTime(1.5) - 2.0, SbTime(-0.5));
    EXPECT_EQ(2 * SbTime(1.5), SbTime(3.0));
    EXPECT_EQ(SbTime(3.0) / 2, SbTime(1.5));
    EXPECT_EQ(SbTime(3.0) / SbTime(1.5), 2.0);
    EXPECT_EQ(SbTime(7.5) % SbTime(2.0), SbTime(1.5));
    EXPECT_LT(SbTime(1.0), SbTime(2.0));
    EXPECT_EQ(SbTime(3, 250000), SbTime(3.25));
    SbTime t;
    t.setMsecValue(1500);
    EXPECT_EQ(t.getValue(), 1.5);
    EXPECT_EQ(t.getMsecValue(), 1500);
}

TEST(Time, TimeOfDayGoesForward)
{
    const SbTime before = SbTime::getTimeOfDay();
    SbTime after;
    after.setToTimeOfDay();
    EXPECT_GE(after, before);
    EXPECT_GT(before.getValue(), 1.6e9);
}

TEST(Time, FormatOfLengths)
{
    const SbTime t(2 * 86400 + 3 * 3600 + 4 * 60 + 5.0067);
    EXPECT_EQ(t.format("%D %h:%m:%s.%i"), "2 03:04:05.006");
    EXPECT_EQ(t.format("%H %M %S"), "51 3064 183845");
    EXPECT_EQ(t.format("%I|%U|%u"), "183845006|183845006700|006700");
    EXPECT_EQ(SbTime(1.25).format(), "1.250");
    EXPECT_EQ(SbTime(-1.25).format(), "-1.250");
    EXPECT_EQ(SbTime(1.0).format("100%% %x %"), "100% %x %");
    EXPECT_EQ(SbTime(NAN).format(), "0.000");
    EXPECT_FALSE(SbTime(INFINITY).format().isEmpty());
}

TEST(Time, FormatOfDates)
{
    const SbTime noon(1000000000.0);
    EXPECT_EQ(noon.formatDate("%Y %%"), "2001 %");
    EXPECT_EQ(noon.formatDate("").getLength(), 0);
    EXPECT_EQ(noon.formatDate("x%Zx").getSubString(0, 0), "x");
    EXPECT_GT(SbTime(1e300).formatDate("%Y").getLength(), 4);
    EXPECT_EQ(noon.formatDate(std::string(2000, 'a').c_str()).getLength(), 2000);
}
