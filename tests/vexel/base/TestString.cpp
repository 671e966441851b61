#include <vexel/base/SbName.h>
#include <vexel/base/SbString.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

TEST(String, ConvertsEncodings)
{
    const SbString text("gr\xc3\xb6\xc3\x9f"
                        "e \xe2\x82\xac");
    EXPECT_EQ(text.getLength(), 7);
    EXPECT_EQ(text.toUtf8(), QByteArray("gr\xc3\xb6\xc3\x9f"
                                        "e \xe2\x82\xac"));
    EXPECT_EQ(text.toLatin1(), QByteArray("gr\xf6\xdf"
                                          "e ?"));
    EXPECT_EQ(SbString::fromLatin1("\xf6"), SbString("\xc3\xb6"));
    EXPECT_EQ(SbString("\xff"), SbString("\xef\xbf\xbd"));
}

TEST(String, NullAndEmptyAreAlike)
{
    EXPECT_TRUE(SbString().isEmpty());
    EXPECT_TRUE(SbString(static_cast<const char*>(nullptr)).isEmpty());
    EXPECT_EQ(SbString(), SbString(""));
}

TEST(String, NumbersAndAppending)
{
    SbString text("n = ");
    text += SbString(-17);
    EXPECT_EQ(text, "n = -17");
    EXPECT_EQ(SbString("a") + "b", SbString("ab"));
    EXPECT_NE(SbString("a"), "b");
    EXPECT_LT(SbString("a"), SbString("b"));
}

TEST(String, SubStringIncludesBothEnds)
{
    const SbString text("abcdef");
    EXPECT_EQ(text.getSubString(1, 3), "bcd");
    EXPECT_EQ(text.getSubString(4), "ef");
    EXPECT_EQ(text.getSubString(-5, 0), "a");
    EXPECT_EQ(text.getSubString(4, 100), "ef");
    EXPECT_TRUE(text.getSubString(6).isEmpty());
    EXPECT_TRUE(text.getSubString(3, 2).isEmpty());
    EXPECT_TRUE(SbString().getSubString(0).isEmpty());
}

TEST(String, FindAnswersThePosition)
{
    const SbString text("abcabc");
    EXPECT_EQ(text.find("c"), 2);
    EXPECT_EQ(text.find("c", 3), 5);
    EXPECT_EQ(text.find("x"), -1);
    EXPECT_TRUE(text.startsWith("ab"));
    EXPECT_TRUE(text.endsWith("bc"));
}

TEST(Name, SameTextIsTheSamePointer)
{
    const std::string copy("Table");
    EXPECT_EQ(SbName("Table").getString(), SbName(std::string_view(copy)).getString());
    EXPECT_EQ(SbName("Table"), SbName(SbString("Table")));
    EXPECT_EQ(SbName("Table"), SbName(QString("Table")));
    EXPECT_NE(SbName("Table"), SbName("table"));
    EXPECT_EQ(SbName("Table"), "Table");
    EXPECT_LT(SbName("a"), SbName("b"));
    EXPECT_EQ(sizeof(SbName), 8u);
}

TEST(Name, EmptyName)
{
    EXPECT_TRUE(SbName().isEmpty());
    EXPECT_EQ(SbName(), SbName(""));
    EXPECT_EQ(SbName(), SbName(static_cast<const char*>(nullptr)));
    EXPECT_EQ(SbName().getLength(), 0u);
    EXPECT_FALSE(SbName("a").isEmpty());
}

TEST(Name, KeepsUtf8)
{
    const SbName name(QString(QChar(0x20ac)));
    EXPECT_STREQ(name.getString(), "\xe2\x82\xac");
    EXPECT_EQ(name.getLength(), 3u);
    EXPECT_EQ(name.toQString(), QString(QChar(0x20ac)));
    EXPECT_EQ(SbString(name).getLength(), 1);
}

TEST(Name, KeepsLongTexts)
{
    const std::string text(100000, 'x');
    EXPECT_EQ(SbName(std::string_view(text)).getView(), text);
}

TEST(Name, ManyNamesKeepTheirPointers)
{
    std::vector<SbName> names;
    for (int i = 0; i < 50000; ++i)
        names.emplace_back(std::string_view("name" + std::to_string(i)));
    std::unordered_set<SbName> distinct(names.begin(), names.end());
    EXPECT_EQ(distinct.size(), names.size());
    for (int i = 0; i < 50000; ++i)
        ASSERT_EQ(names[i].getString(), SbName(std::string_view("name" + std::to_string(i))).getString());
}

TEST(Name, ThreadsGetTheSamePointers)
{
    constexpr int Threads = 4;
    constexpr int Count = 5000;
    std::vector<std::vector<const char*>> found(Threads);
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < Count; ++i)
                found[t].push_back(SbName(std::string_view("shared" + std::to_string(i))).getString());
        });
    for (std::thread& thread : threads)
        thread.join();
    for (int t = 1; t < Threads; ++t)
        EXPECT_EQ(found[0], found[t]);
}
