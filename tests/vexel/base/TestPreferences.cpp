#include <vexel/base/SoPreferences.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

constexpr const char* Name = "TEST_VEXEL_PREFERENCE";

class Preferences : public testing::Test {
protected:
    void TearDown() override
    {
        SoPreferences::removeValue(Name);
        qunsetenv(Name);
    }
};

} // namespace

TEST_F(Preferences, ProgramBeforeEnvironmentBeforeDefault)
{
    EXPECT_FALSE(SoPreferences::hasValue(Name));
    EXPECT_EQ(SoPreferences::getString(Name, "default"), "default");
    qputenv(Name, "environment");
    EXPECT_TRUE(SoPreferences::hasValue(Name));
    EXPECT_EQ(SoPreferences::getString(Name, "default"), "environment");
    SoPreferences::setValue(Name, "program");
    EXPECT_EQ(SoPreferences::getString(Name, "default"), "program");
    SoPreferences::removeValue(Name);
    EXPECT_EQ(SoPreferences::getString(Name, "default"), "environment");
}

TEST_F(Preferences, EmptyIsAValue)
{
    SoPreferences::setValue(Name, "");
    EXPECT_TRUE(SoPreferences::hasValue(Name));
    EXPECT_EQ(SoPreferences::getString(Name, "default"), "");
    EXPECT_TRUE(SoPreferences::getBool(Name, true));
    EXPECT_EQ(SoPreferences::getInt(Name, 7), 7);
}

TEST_F(Preferences, Bools)
{
    for (const char* text : {"1", "true", "TRUE", "Yes", "on", "-3", " 1 "}) {
        SoPreferences::setValue(Name, text);
        EXPECT_TRUE(SoPreferences::getBool(Name, false)) << text;
    }
    for (const char* text : {"0", "false", "No", "OFF", " off"}) {
        SoPreferences::setValue(Name, text);
        EXPECT_FALSE(SoPreferences::getBool(Name, true)) << text;
    }
    for (const char* text : {"maybe", "1x", "truee"}) {
        SoPreferences::setValue(Name, text);
        EXPECT_TRUE(SoPreferences::getBool(Name, true)) << text;
        EXPECT_FALSE(SoPreferences::getBool(Name, false)) << text;
    }
}

TEST_F(Preferences, Numbers)
{
    SoPreferences::setValue(Name, " -42 ");
    EXPECT_EQ(SoPreferences::getInt(Name, 0), -42);
    EXPECT_EQ(SoPreferences::getFloat(Name, 0), -42);
    SoPreferences::setValue(Name, "2.5e-1");
    EXPECT_EQ(SoPreferences::getFloat(Name, 0), 0.25f);
    EXPECT_EQ(SoPreferences::getInt(Name, 9), 9);
    for (const char* text : {"99999999999999", "0x10", "4 5", "seven"}) {
        SoPreferences::setValue(Name, text);
        EXPECT_EQ(SoPreferences::getInt(Name, 9), 9) << text;
    }
}

TEST_F(Preferences, ThreadsReadAndWrite)
{
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([t] {
            for (int i = 0; i < 2000; ++i) {
                SoPreferences::setValue(Name, SbString(t));
                const int seen = SoPreferences::getInt(Name, -1);
                EXPECT_TRUE(seen >= 0 && seen < 4);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
}
