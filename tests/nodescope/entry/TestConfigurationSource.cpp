#include <nodescope/entry/detail/ConfigurationSource.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/io/SoInput.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr char Preference[] = "VXL_NODESCOPE_CONFIGURATION_FILE";

/** The current folder is an empty one. */
class ConfigurationSourceTest : public testing::Test {
protected:
    ConfigurationSourceTest()
    {
        QDir::setCurrent(m_folder.path());
        ConfigurationSource::registerMinimalConfiguration();
    }
    ~ConfigurationSourceTest() override
    {
        SoPreferences::removeValue(Preference);
        SoPreferences::removeValue("TEST_FOLDER");
        QDir::setCurrent(m_previous);
    }

    QString makeFile(const char* name) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }
    static QString file()
    {
        const ConfigurationSource::Source source = ConfigurationSource::resolveConfiguration();
        return source.isFile ? source.pathOrText.toQString() : QString();
    }

    const QString m_previous = QDir::currentPath();
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ConfigurationSourceTest, TheNamedFileComesBeforeTheOneInTheCurrentFolder)
{
    makeFile("NscConfiguration.xml");
    const QString named = makeFile("named.xml");
    SoPreferences::setValue(Preference, named);
    EXPECT_EQ(file().toStdString(), named.toStdString());
}

TEST_F(ConfigurationSourceTest, TheFileInTheCurrentFolderComesSecond)
{
    SoPreferences::setValue(Preference, "/no/such/file.xml");
    makeFile("NscConfiguration.xml");
    EXPECT_EQ(file(), "./NscConfiguration.xml");
}

TEST_F(ConfigurationSourceTest, NamesOfTheEnvironmentAreExpanded)
{
    SoPreferences::setValue("TEST_FOLDER", m_folder.path());
    SoPreferences::setValue(Preference, "$TEST_FOLDER/named.xml");
    const QString named = makeFile("named.xml");
    EXPECT_EQ(file().toStdString(), named.toStdString());
}

TEST_F(ConfigurationSourceTest, WithoutAnyFileTheBuiltInTextIsUsed)
{
    SoPreferences::setValue(Preference, "/no/such/file.xml");
    const ConfigurationSource::Source source = ConfigurationSource::resolveConfiguration();
    EXPECT_FALSE(source.isFile);
    SbString text;
    ASSERT_TRUE(SoInput::readTextFile("NscMinimal_xml.h", text));
    EXPECT_EQ(source.pathOrText, text);
}

TEST_F(ConfigurationSourceTest, TheBuiltInTextHasOneElementALine)
{
    SbString text;
    ASSERT_TRUE(SoInput::readTextFile("NscMinimal_xml.h", text));
    const QStringList lines = text.toQString().split('\n');
    ASSERT_EQ(lines.size(), 51 + 1);
    EXPECT_EQ(lines.mid(0, 9),
              (QStringList{"<?xml version=\"1.0\" encoding=\"utf-8\"?>", "<configuration >", "<plugins>",
                           "<loadPlugin file=\"kor_nodescope_extender_base\"/>", "</plugins>",
                           "<profiles default=\"Defaults\">", "<profile name=\"Defaults\">",
                           "<activeExtension plugin=\"NscDefaults\" extension=\"Field Editor\">",
                           "<controlledExtension plugin=\"NscDefaults\" extension=\"MFColor\"/>"}));
    EXPECT_EQ(lines.filter("controlledExtension").size(), 39);
    EXPECT_EQ(lines.mid(46), (QStringList{"<controlledExtension plugin=\"NscDefaults\" extension=\"SFVec4f\"/>",
                                          "</activeExtension>", "</profile>", "</profiles>", "</configuration>", ""}));
}
