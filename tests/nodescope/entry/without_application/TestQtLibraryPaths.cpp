#include <nodescope/entry/detail/QtLibraryPaths.h>
#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDynamicLibManager.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/io/SoDB.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/** The current folder is an empty one. */
class QtLibraryPathsTest : public testing::Test {
protected:
    QtLibraryPathsTest() { QDir::setCurrent(m_folder.path()); }
    ~QtLibraryPathsTest() override
    {
        QCoreApplication::setLibraryPaths(m_before);
        SoPreferences::removeValue("QT_QPA_PLATFORM_PLUGIN_PATH");
        QDir::setCurrent(m_previous);
    }

    /** The paths that a call adds. */
    QStringList added(const SbString& defaultPath = SbString())
    {
        setupQtLibraryPaths(defaultPath);
        QStringList paths;
        for (const QString& path : QCoreApplication::libraryPaths()) {
            if (!m_before.contains(path))
                paths << path;
        }
        return paths;
    }

    const QStringList m_before = QCoreApplication::libraryPaths();
    const QString m_previous = QDir::currentPath();
    QTemporaryDir m_folder;
};

/** A folder of plug-ins beside the toolkit, for the length of a test. */
class PluginFolder {
public:
    PluginFolder() { QDir().mkdir(m_path); }
    ~PluginFolder() { QDir().rmdir(m_path); }
    QString path() const { return m_path; }

private:
    const QString m_path = SbFileHelper::getDirName(SoDynamicLibManager::getLibraryFromSymbol(
                                                        reinterpret_cast<const void*>(&SoVexelBase::init)))
                               .toQString() +
                           "qtplugins";
};

} // namespace

TEST_F(QtLibraryPathsTest, TheGivenFolderIsTaken)
{
    EXPECT_EQ(added(m_folder.path()), QStringList{m_folder.path()});
}

TEST_F(QtLibraryPathsTest, ElseTheFolderBesideTheToolkit)
{
    EXPECT_EQ(added(), QStringList());
    const PluginFolder plugins;
    EXPECT_EQ(added(), QStringList{plugins.path()});
}

TEST_F(QtLibraryPathsTest, AQtConfInTheCurrentFolderDecides)
{
    QFile file("qt.conf");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(added(m_folder.path()), QStringList());
}

TEST_F(QtLibraryPathsTest, APreferenceDecides)
{
    SoPreferences::setValue("QT_QPA_PLATFORM_PLUGIN_PATH", "/somewhere");
    EXPECT_EQ(added(m_folder.path()), QStringList());
}

TEST_F(QtLibraryPathsTest, AnApplicationObjectDecides)
{
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    EXPECT_FALSE(added(m_folder.path()).contains(m_folder.path())); // Qt itself adds the program's folder
}
