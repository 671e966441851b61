#include <extension/NscPluginsManager.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoPreferences.h>

#include <QStringList>
#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>

namespace {

QString configuration(const QString& libraries, const QString& profiles)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<configuration >\n<plugins>\n" + libraries + "</plugins>\n" +
           profiles + "</configuration>\n";
}

QString library(const char* name)
{
    return QStringLiteral("<loadPlugin file=\"%1\"/>\n").arg(name);
}

QString profile(const QString& content)
{
    return "<profiles default=\"Main\">\n<profile name=\"Other\"><activeExtension plugin=\"TestPlugin\" "
           "extension=\"other\"/></profile>\n<profile name=\"Main\">\n" +
           content + "</profile>\n</profiles>\n";
}

const char Field_editor[] = "<activeExtension plugin=\"TestPlugin\" extension=\"Editor\">\n"
                            "<controlledExtension plugin=\"TestPlugin\" extension=\"SFInt32\"/>\n"
                            "<controlledExtension plugin=\"TestPlugin\" extension=\"MField\"/>\n"
                            "</activeExtension>\n";

class PluginsManagerTest : public testing::Test {
protected:
    PluginsManagerTest()
    {
        SoPreferences::setValue("TEST_PLUGIN_LOG", "");
        SoDebugError::setHandlerCallback(
            [](const SoError* error, void* data) {
                static_cast<PluginsManagerTest*>(data)->m_posted << error->getDebugString().toQString();
            },
            this);
    }
    ~PluginsManagerTest() override
    {
        NscPluginsManager::releaseInstance();
        SoDebugError::setHandlerCallback(nullptr);
    }

    static bool read(const QString& text) { return NscPluginsManager::getInstance()->read(text, false); }
    static std::string log() { return SoPreferences::getString("TEST_PLUGIN_LOG", "").toUtf8().toStdString(); }
    static QStringList problems()
    {
        QStringList texts;
        for (const SbString& problem : NscPluginsManager::getInstance()->getProblems())
            texts << problem.toQString();
        return texts;
    }

    QStringList m_posted;
};

} // namespace

TEST_F(PluginsManagerTest, ExtensionsOfTheDefaultProfileAreCreatedConnectedAndActivated)
{
    EXPECT_TRUE(read(configuration(library("extension_test_Plugin"), profile(Field_editor))));
    EXPECT_EQ(log(), "create SFInt32\ncreate MField\ncreate Editor\nadd SFInt32 to Editor\nadd MField to Editor\n"
                     "activate SFInt32\nactivate MField\nactivate Editor\n");
    EXPECT_EQ(m_posted, QStringList());
}

TEST_F(PluginsManagerTest, ReleasingDeletesTheLastCreatedFirst)
{
    read(configuration(library("extension_test_Plugin"), profile(Field_editor)));
    SoPreferences::setValue("TEST_PLUGIN_LOG", "");
    NscPluginsManager::releaseInstance();
    EXPECT_EQ(log(), "delete Editor\ndelete MField\ndelete SFInt32\n");
}

TEST_F(PluginsManagerTest, AnExtensionNamedTwiceIsCreatedOnce)
{
    EXPECT_TRUE(
        read(configuration(library("extension_test_Plugin"),
                           profile("<activeExtension plugin=\"TestPlugin\" extension=\"A\">"
                                   "<controlledExtension plugin=\"TestPlugin\" extension=\"C\"/></activeExtension>"
                                   "<activeExtension plugin=\"TestPlugin\" extension=\"B\">"
                                   "<controlledExtension plugin=\"TestPlugin\" extension=\"C\"/></activeExtension>"))));
    EXPECT_EQ(log(), "create C\ncreate A\nadd C to A\ncreate B\nadd C to B\nactivate C\nactivate A\nactivate B\n");
}

TEST_F(PluginsManagerTest, AMissingLibraryIsOneMessageAndTheRestIsLoaded)
{
    EXPECT_FALSE(read(configuration(library("no_such_plugin") + library("extension_test_Plugin"),
                                    profile("<activeExtension plugin=\"Lost\" extension=\"A\"/>"
                                            "<activeExtension plugin=\"Lost\" extension=\"B\"/>"
                                            "<activeExtension plugin=\"TestPlugin\" extension=\"C\"/>"))));
    EXPECT_EQ(log(), "create C\nactivate C\n");
    ASSERT_EQ(problems().size(), 1) << problems().join("\n").toStdString();
    EXPECT_TRUE(problems()[0].startsWith("cannot load the plug-in 'no_such_plugin': libno_such_plugin.so: "))
        << problems()[0].toStdString();
    ASSERT_EQ(m_posted.size(), 1);
    EXPECT_TRUE(m_posted[0].contains(problems()[0])) << m_posted[0].toStdString();
}

TEST_F(PluginsManagerTest, AFileIsReadByItsName)
{
    QTemporaryDir folder;
    const QString name = folder.filePath("c.xml");
    std::ofstream(name.toStdString())
        << configuration(library("extension_test_Plugin"), profile(Field_editor)).toStdString();
    EXPECT_TRUE(NscPluginsManager::getInstance()->read(name, true));
    EXPECT_NE(log().find("activate Editor"), std::string::npos);
}

TEST_F(PluginsManagerTest, AFileThatIsNotThereIsTold)
{
    EXPECT_FALSE(NscPluginsManager::getInstance()->read("/no/such.xml", true));
    EXPECT_EQ(problems(), QStringList{"cannot read the configuration file '/no/such.xml': No such file or directory"});
}

struct BadText {
    const char* text;
    const char* problem;
};

class BadConfiguration : public PluginsManagerTest, public testing::WithParamInterface<BadText> {};

TEST_P(BadConfiguration, IsOneMessage)
{
    EXPECT_FALSE(read(GetParam().text));
    EXPECT_EQ(problems(), QStringList{GetParam().problem}) << problems().join("\n").toStdString();
    EXPECT_EQ(log(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadConfiguration,
    testing::Values(
        BadText{"<configuration>\n<plugins>", "cannot use the configuration, line 2: Premature end of document."},
        BadText{"<other/>", "cannot use the configuration, line 1: the root element is 'other', not 'configuration'"},
        BadText{"<configuration>\n<plugins>\n<loadPlugin/>\n</plugins></configuration>",
                "cannot use the configuration, line 3: element 'loadPlugin' has no attribute 'file'"},
        BadText{"<configuration><profiles default=\"X\"><profile name=\"Y\"/></profiles></configuration>",
                "cannot use the configuration, line 1: the default profile 'X' is not among the profiles"},
        BadText{"<configuration><profiles default=\"X\"><profile name=\"X\"><activeExtension plugin=\"Lost\" "
                "extension=\"A\"/></profile></profiles></configuration>",
                "none of the loaded plug-ins is named 'Lost'"},
        BadText{"<configuration><plugins><loadPlugin file=\"vexel\"/></plugins></configuration>",
                "the library 'vexel' is no plug-in: it has no function nscCreatePlugin"}));

TEST_F(PluginsManagerTest, AnExtensionThatThePlugInDoesNotHaveIsTold)
{
    EXPECT_FALSE(read(configuration(library("extension_test_Plugin"),
                                    profile("<activeExtension plugin=\"TestPlugin\" extension=\"unknown\"/>"))));
    EXPECT_EQ(problems(), QStringList{"the plug-in 'TestPlugin' has no extension 'unknown'"});
}
