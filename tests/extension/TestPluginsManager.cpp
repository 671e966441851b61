#include "ManagerFixture.h"

#include <QTemporaryDir>
#include <fstream>

namespace {

const QString Field_editor = active("Editor", {"SFInt32", "MField"});

} // namespace

TEST_F(PluginsManagerTest, ExtensionsOfTheDefaultProfileAreMadeAfterThoseThatTheyControl)
{
    EXPECT_TRUE(read(configuration(library("extension_test_Plugin"), profile(Field_editor))));
    EXPECT_EQ(log(), "create SFInt32\nactivate SFInt32\ncreate MField\nactivate MField\n"
                     "create Editor\nadd SFInt32 to Editor\nadd MField to Editor\nactivate Editor\n");
    EXPECT_EQ(m_posted, QStringList());
    EXPECT_EQ(problems(), "");
}

TEST_F(PluginsManagerTest, ReleasingDeletesTheLastCreatedFirstAndThePlugInsAtTheEnd)
{
    read(configuration(library("extension_test_Plugin"), profile(Field_editor)));
    SoPreferences::setValue("TEST_PLUGIN_LOG", "");
    NscPluginsManager::releaseInstance();
    EXPECT_EQ(log(), "delete Editor\ndelete MField\ndelete SFInt32\ndelete plug-in\n");
}

TEST_F(PluginsManagerTest, AnExtensionNamedTwiceIsCreatedOnce)
{
    EXPECT_TRUE(read(configuration(library("extension_test_Plugin"),
                                   profile(active("A", {"C", "C"}) + active("B", {"C"}) + active("A", {"D", "C"})))));
    EXPECT_EQ(log(), "create C\nactivate C\ncreate D\nactivate D\ncreate A\nadd C to A\nadd D to A\nactivate A\n"
                     "create B\nadd C to B\nactivate B\n");
}

TEST_F(PluginsManagerTest, AControlledExtensionMayControlOthersWhateverTheOrder)
{
    EXPECT_TRUE(read(configuration(library("extension_test_Plugin"),
                                   profile(active("A", {"B"}) + active("B", {"C"}) + active("C")))));
    EXPECT_EQ(log(), "create C\nactivate C\ncreate B\nadd C to B\nactivate B\ncreate A\nadd B to A\nactivate A\n");
}

TEST_F(PluginsManagerTest, ARingOfControlIsOpened)
{
    EXPECT_FALSE(
        read(configuration(library("extension_test_Plugin"), profile(active("A", {"B"}) + active("B", {"A"})))));
    EXPECT_EQ(log(), "create B\nactivate B\ncreate A\nadd B to A\nactivate A\n");
    EXPECT_EQ(problems(),
              "the extension 'A' of the plug-in 'TestPlugin' is controlled by one that it controls itself\n");
}

TEST_F(PluginsManagerTest, AFurtherConfigurationAddsWhatIsNew)
{
    read(configuration(library("extension_test_Plugin"), profile(active("A"))));
    SoPreferences::setValue("TEST_PLUGIN_LOG", "");
    EXPECT_TRUE(read(configuration(library("extension_test_Plugin"), profile(active("B", {"A"})))));
    EXPECT_EQ(log(), "create B\nadd A to B\nactivate B\n");
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

TEST_F(PluginsManagerTest, AFileThatCannotBeReadIsTold)
{
    EXPECT_FALSE(NscPluginsManager::getInstance()->read("/no/such.xml", true));
    EXPECT_FALSE(NscPluginsManager::getInstance()->read("/proc/self/mem", true)); // opens, but cannot be read
    EXPECT_EQ(problems(), "cannot read the configuration file '/no/such.xml': No such file or directory\n"
                          "cannot read the configuration file '/proc/self/mem': Input/output error\n");
}

TEST_F(PluginsManagerTest, AProfileIsChosenByTheDefaultOfTheFile)
{
    EXPECT_TRUE(read(configuration(library("extension_test_Plugin"),
                                   profile(active("A")).replace("default=\"Main\"", "default=\"Other\""))));
    EXPECT_EQ(log(), "create other\nactivate other\n");
}

TEST_F(PluginsManagerTest, AllProblemsOfAConfigurationAreOneMessage)
{
    EXPECT_FALSE(read(configuration(library("extension_test_Null") + library("extension_test_Plugin"),
                                    profile(active("unknown") + active("throws a number")))));
    EXPECT_EQ(m_posted.join('|').toStdString(),
              "Error in NscPluginsManager::read: the library '" PLUGIN_FOLDER
              "/libextension_test_Null.so' makes no plug-in\n"
              "the plug-in 'TestPlugin' has no extension 'unknown'\n"
              "the extension 'throws a number' of the plug-in 'TestPlugin' cannot be activated: unknown exception");
}
