#include "ManagerFixture.h"

namespace {

struct BadText {
    const char* text;
    const char* problems; ///< a line each
};

} // namespace

class BadConfiguration : public PluginsManagerTest, public testing::WithParamInterface<BadText> {};

TEST_P(BadConfiguration, IsToldWithItsPlace)
{
    EXPECT_FALSE(read(GetParam().text));
    EXPECT_EQ(problems(), GetParam().problems);
    EXPECT_EQ(m_posted.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    NoXml, BadConfiguration,
    testing::Values(
        BadText{"", "the configuration, line 1, column 0: the text ends, expected is the element 'configuration'\n"},
        BadText{"<configuration>\n<plugins>",
                "the configuration, line 2, column 9: the text ends, expected is </plugins>\n"},
        BadText{"<configuration><profiles default=\"X\">\n<profile name=\"X\">\n",
                "the configuration, line 3, column 0: the text ends, expected is </profile>\n"},
        BadText{"<configuration>\n<plugins></profiles>",
                "the configuration, line 2, column 20: Opening and ending tag mismatch.\n"},
        BadText{"<configuration version=1/>",
                "the configuration, line 1, column 24: Expected ''' or '\"', but got '[0-9]'.\n"},
        BadText{"plain words", "the configuration, line 1, column 1: Start tag expected.\n"},
        BadText{"<configuration/><configuration/>",
                "the configuration, line 1, column 32: Extra content at end of document.\n"},
        BadText{"<other/>",
                "the configuration, line 1, column 8: the root element is 'other', expected is 'configuration'\n"}));

INSTANTIATE_TEST_SUITE_P(
    LackingParts, BadConfiguration,
    testing::Values(
        BadText{"<configuration>\n<plugins>\n<loadPlugin/>\n<loadPlugin file=\"\"/>\n</plugins></configuration>",
                "the configuration, line 3, column 13: element 'loadPlugin' has no attribute 'file'\n"
                "the configuration, line 4, column 21: element 'loadPlugin' has no attribute 'file'\n"},
        BadText{"<configuration><plugins><loadPlugin file=\"../x\"/></plugins></configuration>",
                "the configuration, line 1, column 49: '../x' has a folder, expected is the name of a library\n"},
        BadText{"<configuration><profiles/></configuration>",
                "the configuration, line 1, column 26: element 'profiles' has no attribute 'default'\n"},
        BadText{"<configuration><profiles default=\"X\"><profile/><profile name=\"X\"/></profiles></configuration>",
                "the configuration, line 1, column 47: element 'profile' has no attribute 'name'\n"},
        BadText{"<configuration><profiles default=\"X\"/></configuration>",
                "the configuration, the default profile 'X' is not among the profiles: there is none\n"},
        BadText{"<configuration><profiles default=\"X\"><profile name=\"Y\"/><profile name=\"Z\"/></profiles>"
                "</configuration>",
                "the configuration, the default profile 'X' is not among the profiles: there are 'Y', 'Z'\n"},
        BadText{"<configuration><profiles default=\"X\"><profile name=\"X\"/>\n<profile name=\"X\"><activeExtension "
                "plugin=\"P\" extension=\"E\"/></profile></profiles></configuration>",
                "the configuration, line 2, column 18: there is a profile 'X' in line 1 already, this one does not "
                "count\n"},
        BadText{"<configuration><profiles default=\"X\"><profile name=\"X\"/></profiles>\n<profiles "
                "default=\"Y\"/></configuration>",
                "the configuration, line 2, column 23: there is a second element 'profiles', which does not count\n"},
        BadText{"<configuration><profiles default=\"X\"><profile name=\"X\">\n<activeExtension/>\n"
                "</profile></profiles></configuration>",
                "the configuration, line 2, column 18: element 'activeExtension' has no attribute 'plugin'\n"
                "the configuration, line 2, column 18: element 'activeExtension' has no attribute 'extension'\n"},
        BadText{"<configuration><profiles default=\"X\"><profile name=\"X\"><activeExtension plugin=\"Lost\" "
                "extension=\"A\"><controlledExtension plugin=\"Lost\"/></activeExtension></profile></profiles>"
                "</configuration>",
                "the configuration, line 1, column 136: element 'controlledExtension' has no attribute 'extension'\n"
                "none of the loaded plug-ins is named 'Lost'\n"}));

TEST_F(PluginsManagerTest, WhatLacksInTheTextLeavesOnlyThatOut)
{
    EXPECT_FALSE(read(configuration("<loadPlugin/>" + library("extension_test_Plugin"),
                                    profile("<activeExtension/>" + active("A")))));
    EXPECT_EQ(log(), "create A\nactivate A\n");
}

TEST_F(PluginsManagerTest, NothingIsLoadedOfATextThatIsNoXml)
{
    EXPECT_FALSE(read(configuration(library("extension_test_Plugin"), profile(active("A"))) + "<"));
    EXPECT_EQ(log(), "");
}

TEST_F(PluginsManagerTest, UnknownElementsAndAttributesArePassedOver)
{
    const QString more = "<later version=\"2\"><activeExtension/></later>";
    EXPECT_TRUE(read(configuration(more + library("extension_test_Plugin"),
                                   more + profile(more + active("A").replace(">\n</", ">" + more + "</")))));
    EXPECT_EQ(log(), "create A\nactivate A\n");
}

TEST_F(PluginsManagerTest, DeepAndLongTextsAreRead)
{
    constexpr int Many = 200000;
    const QString deep = QString("<x>").repeated(Many) + QString("</x>").repeated(Many);
    QString profiles;
    for (int i = 0; i < Many; ++i)
        profiles += QStringLiteral("<profile name=\"%1\"/>").arg(i);
    EXPECT_TRUE(read(configuration(deep + library("extension_test_Plugin"),
                                   profile(active("A")).replace("</profiles>", profiles + "</profiles>"))));
    EXPECT_EQ(log(), "create A\nactivate A\n");
}

TEST_F(PluginsManagerTest, ALongChainOfControlIsWalkedWithoutRecursion)
{
    constexpr int Length = 100000;
    QString chain;
    for (int i = 0; i < Length; ++i)
        chain += "<activeExtension plugin=\"Lost\" extension=\"" + QString::number(i) +
                 "\"><controlledExtension plugin=\"Lost\" extension=\"" + QString::number(i + 1) +
                 "\"/></activeExtension>";
    EXPECT_FALSE(read(configuration("", profile(chain))));
    EXPECT_EQ(problems(), "none of the loaded plug-ins is named 'Lost'\n");
}
