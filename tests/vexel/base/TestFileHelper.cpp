#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoPreferences.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

TEST(FileHelper, PartsOfAPath)
{
    struct Row {
        const char* path;
        const char* directory;
        const char* base;
        const char* stem;
        const char* extension;
    };
    const Row rows[] = {
        {"/a/b/scene.vx", "/a/b/", "scene.vx", "scene", "vx"},
        {"scene.vx.gz", "", "scene.vx.gz", "scene.vx", "gz"},
        {"/a/b/", "/a/b/", "", "", ""},
        {"/a.d/b", "/a.d/", "b", "b", ""},
        {"../x", "../", "x", "x", ""},
        {"/.profile", "/", ".profile", ".profile", ""},
        {"x.", "", "x.", "x", ""},
        {"", "", "", "", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SbFileHelper::getDirName(row.path), row.directory) << row.path;
        EXPECT_EQ(SbFileHelper::getBaseName(row.path), row.base) << row.path;
        EXPECT_EQ(SbFileHelper::getBaseName(row.path, false), row.stem) << row.path;
        EXPECT_EQ(SbFileHelper::getExtension(row.path), row.extension) << row.path;
    }
}

TEST(FileHelper, PathForms)
{
    EXPECT_EQ(SbFileHelper::toUnixPath("a\\b/c\\"), "a/b/c/");
    EXPECT_TRUE(SbFileHelper::isAbsolute("/a"));
    EXPECT_FALSE(SbFileHelper::isAbsolute("a/b"));
    EXPECT_FALSE(SbFileHelper::isAbsolute(""));
    EXPECT_EQ(SbFileHelper::getFullPath("/a/./b/../c"), "/a/c");
    EXPECT_EQ(SbFileHelper::getFullPath("x/y"), SbString(QDir::currentPath() + "/x/y"));
}

TEST(FileHelper, Accessible)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString path = folder.filePath(QString::fromUtf8("gr\xc3\xb6\xc3\x9f"
                                                           "e.vx"));
    EXPECT_FALSE(SbFileHelper::isAccessible(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_TRUE(SbFileHelper::isAccessible(path));
    EXPECT_TRUE(SbFileHelper::isAccessible(path, SbFileHelper::READ_WRITE));
    EXPECT_TRUE(SbFileHelper::isAccessible(folder.path(), SbFileHelper::READ));
    EXPECT_FALSE(SbFileHelper::isAccessible(path + "/below", SbFileHelper::READ));
    EXPECT_FALSE(SbFileHelper::isAccessible("", SbFileHelper::READ));
}

TEST(FileHelper, ExpandsReferences)
{
    SoPreferences::setValue("TEST_HOME", "/home/$x");
    SoPreferences::setValue("TEST_EMPTY", "");
    struct Row {
        const char* text;
        const char* expanded;
    };
    const Row rows[] = {
        {"$TEST_HOME/data", "/home/$x/data"},
        {"${TEST_HOME}data", "/home/$xdata"},
        {"a${TEST_EMPTY}b$TEST_EMPTY", "ab"},
        {"$TEST_HOME$TEST_HOME", "/home/$x/home/$x"},
        {"$TEST_UNKNOWN_NAME/a", "$TEST_UNKNOWN_NAME/a"},
        {"${TEST_UNKNOWN_NAME}/a", "${TEST_UNKNOWN_NAME}/a"},
        {"${TEST_HOME", "${TEST_HOME"},
        {"a$", "a$"},
        {"$ $1 ${} $$", "$ $1 ${} $$"},
        {"", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(SbFileHelper::expandString(row.text), row.expanded) << row.text;
    SoPreferences::removeValue("TEST_HOME");
    SoPreferences::removeValue("TEST_EMPTY");
}

TEST(FileHelper, ExpandsTheEnvironment)
{
    qputenv("TEST_VEXEL_FOLDER", "/opt/scenes");
    EXPECT_EQ(SbFileHelper::expandString("$TEST_VEXEL_FOLDER/a.vx"), "/opt/scenes/a.vx");
    qunsetenv("TEST_VEXEL_FOLDER");
}
