#include "ManagerFixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

/** Reads a configuration of one library. */
class LibrariesTest : public PluginsManagerTest {
protected:
    ~LibrariesTest() override
    {
        SoPreferences::removeValue("VXLHOME");
        SoPreferences::removeValue("TEST_FOLDER");
    }

    static bool load(const char* name) { return read(configuration(library(name), "")); }
    QString makeFolder(const QString& name) const
    {
        QDir().mkpath(m_folder.filePath(name));
        return m_folder.filePath(name);
    }
    /** A library that is found there says so: it is a broken file. */
    void breakLibrary(const QString& folder, const char* name) const
    {
        QFile file(makeFolder(folder) + "/lib" + name + ".so");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("no library");
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(LibrariesTest, AreFoundWithAndWithoutThePrefixLib)
{
    EXPECT_TRUE(read(configuration(library("extension_test_Bare"), profile(active("A")))));
    EXPECT_EQ(log(), "create A\nactivate A\n");
}

TEST_F(LibrariesTest, OfThePathComeFirstInItsOrder)
{
    breakLibrary("first", "x");
    breakLibrary("second", "x");
    breakLibrary("home/plugins/nodescope", "x");
    SoPreferences::setValue("TEST_FOLDER", m_folder.path());
    SoPreferences::setValue("VXLHOME", m_folder.filePath("home"));
    SoPreferences::setValue("VXL_NODESCOPE_PLUGIN_PATH", "/no/such:$TEST_FOLDER/first::${TEST_FOLDER}/second");
    EXPECT_FALSE(load("x"));
    const QString file = m_folder.filePath("first/libx.so");
    EXPECT_EQ(problems(), ("cannot load the plug-in 'x': " + file + ": file too short\n").toStdString());
}

TEST_F(LibrariesTest, OfTheHomeFolderComeNext)
{
    breakLibrary("home/plugins/nodescope", "x");
    SoPreferences::setValue("VXLHOME", m_folder.filePath("home"));
    EXPECT_FALSE(load("x"));
    const QString file = m_folder.filePath("home/plugins/nodescope/libx.so");
    EXPECT_EQ(problems(), ("cannot load the plug-in 'x': " + file + ": file too short\n").toStdString());
}

TEST_F(LibrariesTest, ThatAreNowhereAreToldWithAllFolders)
{
    SoPreferences::setValue("VXLHOME", "/home/of/it");
    SoPreferences::setValue("VXL_NODESCOPE_PLUGIN_PATH", "/a:/b/../c/");
    EXPECT_FALSE(load("no_such"));
    EXPECT_EQ(problems(), "cannot find the plug-in 'no_such': neither libno_such.so nor no_such.so is in /a, /c, "
                          "/home/of/it/plugins/nodescope, " LIBRARY_FOLDER "/nodescope, " LIBRARY_FOLDER
                          ", and the system says: libno_such.so: cannot open shared object file: No such file or "
                          "directory\n");
}

TEST_F(LibrariesTest, OneThatLacksIsToldOnceAndTheRestIsLoaded)
{
    EXPECT_FALSE(read(configuration(library("no_such") + library("extension_test_Plugin"),
                                    profile("<activeExtension plugin=\"Lost\" extension=\"A\"/>"
                                            "<activeExtension plugin=\"Lost\" extension=\"B\"/>" +
                                            active("C")))));
    EXPECT_EQ(log(), "create C\nactivate C\n");
    EXPECT_EQ(NscPluginsManager::getInstance()->getProblems().size(), 1u) << problems();
}

TEST_F(LibrariesTest, NamedTwiceAreLoadedOnce)
{
    EXPECT_TRUE(read(configuration(library("extension_test_Plugin") + library("extension_test_Plugin"), "")));
    NscPluginsManager::releaseInstance();
    EXPECT_EQ(log(), "delete plug-in\n");
}

TEST_F(LibrariesTest, OfTwoPlugInsWithOneNameTheFirstIsUsed)
{
    EXPECT_FALSE(
        read(configuration(library("extension_test_Plugin") + library("extension_test_Bare"), profile(active("A")))));
    EXPECT_EQ(problems(), "the plug-in 'TestPlugin' of '" PLUGIN_FOLDER
                          "/extension_test_Bare.so' is not used: one of this name is in '" PLUGIN_FOLDER
                          "/libextension_test_Plugin.so'\n");
    EXPECT_EQ(log(), "create A\nactivate A\n");
}

struct BadLibrary {
    const char* name;
    const char* problem;
};

class RefusedLibrary : public LibrariesTest, public testing::WithParamInterface<BadLibrary> {};

TEST_P(RefusedLibrary, IsToldWithItsFile)
{
    EXPECT_FALSE(load(GetParam().name));
    EXPECT_EQ(problems(), GetParam().problem);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedLibrary,
    testing::Values(
        BadLibrary{"extension_test_Old",
                   "the plug-in '" PLUGIN_FOLDER "/libextension_test_Old.so' is made for version 0 of the extension "
                   "interface, this is version 1: compile it anew\n"},
        BadLibrary{"extension_test_Unversioned",
                   "the library '" PLUGIN_FOLDER
                   "/libextension_test_Unversioned.so' is no plug-in: it has no NSC_PLUGIN\n"},
        BadLibrary{"vexel", "the library '" LIBRARY_FOLDER "/libvexel.so' is no plug-in: it has no NSC_PLUGIN\n"},
        BadLibrary{"extension_test_Failing",
                   "the plug-in '" PLUGIN_FOLDER "/libextension_test_Failing.so' cannot be made: no licence\n"},
        BadLibrary{"extension_test_Null",
                   "the library '" PLUGIN_FOLDER "/libextension_test_Null.so' makes no plug-in\n"},
        BadLibrary{"extension_test_Unresolved",
                   "cannot load the plug-in 'extension_test_Unresolved': " PLUGIN_FOLDER
                   "/libextension_test_Unresolved.so: undefined symbol: functionThatNobodyHas\n"}));

struct FailingExtension {
    const char* name;
    const char* problem;
    const char* log;
};

class FailedExtension : public PluginsManagerTest, public testing::WithParamInterface<FailingExtension> {};

TEST_P(FailedExtension, IsDeletedAndTheOthersAreThere)
{
    EXPECT_FALSE(read(configuration(library("extension_test_Plugin"),
                                    profile(active(GetParam().name, {"C"}) + active("Other", {GetParam().name})))));
    EXPECT_EQ(problems(), std::string(GetParam().problem) + '\n');
    EXPECT_EQ(log(), std::string("create C\nactivate C\n") + GetParam().log + "create Other\nactivate Other\n");
}

INSTANTIATE_TEST_SUITE_P(
    Table, FailedExtension,
    testing::Values(
        FailingExtension{"unknown", "the plug-in 'TestPlugin' has no extension 'unknown'", ""},
        FailingExtension{"fails when made",
                         "the extension 'fails when made' of the plug-in 'TestPlugin' cannot be created: no memory for "
                         "it",
                         ""},
        FailingExtension{"fails when connected",
                         "the extension 'fails when connected' of the plug-in 'TestPlugin' cannot be activated: wants "
                         "none",
                         "create fails when connected\ndelete fails when connected\n"},
        FailingExtension{"fails when activated",
                         "the extension 'fails when activated' of the plug-in 'TestPlugin' cannot be activated: has no "
                         "display",
                         "create fails when activated\nadd C to fails when activated\nactivate fails when activated\n"
                         "delete fails when activated\n"},
        FailingExtension{"throws a number",
                         "the extension 'throws a number' of the plug-in 'TestPlugin' cannot be activated: unknown "
                         "exception",
                         "create throws a number\nadd C to throws a number\nactivate throws a number\n"
                         "delete throws a number\n"},
        FailingExtension{"throws no words",
                         "the extension 'throws no words' of the plug-in 'TestPlugin' cannot be activated: unknown "
                         "exception",
                         "create throws no words\nadd C to throws no words\nactivate throws no words\n"
                         "delete throws no words\n"}));
