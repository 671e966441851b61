#include "PreferenceFixture.h"

#include <nodescope/preferences/SoTreeViewPreferences.h>
#include <nodescope/preferences/SoViewerPreferences.h>

#include <QDir>
#include <QFile>

namespace {

/** Reads settings that somebody else wrote. */
class DamagedSettings : public PreferenceTest {
protected:
    void put(const QByteArray& content)
    {
        SoPreferenceStore::deleteInstance();
        m_disk.sync();
        QDir().mkpath(QFileInfo(m_disk.fileName()).path());
        QFile file(m_disk.fileName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        m_disk.sync();
        store();
        SoPreferenceStore::deleteInstance(); // which reads the file anew
    }
    void expectDefaults()
    {
        const DisplayElementMap elements = store().loadElements(SoPreferenceStore::TreeViewGroup);
        const DisplayElementMap defaults = store().defaultElements(SoPreferenceStore::TreeViewGroup);
        ASSERT_EQ(elements.keys(), defaults.keys());
        for (const QString& name : defaults.keys()) {
            EXPECT_EQ(elements[name].font, defaults[name].font) << name.toStdString();
            EXPECT_EQ(elements[name].color, defaults[name].color) << name.toStdString();
        }
        EXPECT_EQ(store().readTransparencyType(), 2);
        EXPECT_EQ(store().readBackground(), SoPreferenceStore::defaultBackground());
        EXPECT_EQ(store().readColumnWidth(SoPreferenceStore::NodeOverviewGroup, 0), 20);
    }
};

TEST_F(DamagedSettings, OfAnotherKindOfFileReadAsDefaults)
{
    for (const QByteArray& content :
         {QByteArray(), QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11), QByteArray(100000, '['),
          QByteArray("[[[]]]\n====\n\xff\xfe"), QByteArray("[TreeViewPreferences]\nNode%20Type\\family=\n")}) {
        put(content);
        expectDefaults();
    }
}

TEST_F(DamagedSettings, WithValuesOfOtherKindsReadAsDefaults)
{
    put("[ViewerPreferences]\nTransparencyType=thick\nBackgroundColor=very dark\n"
        "[NodeOverviewPreferences]\n%2FListColumnWidth\\0=wide\nListColumnWidth\\0=wide\n");
    expectDefaults();
    put("[ViewerPreferences]\nTransparencyType=-1\nBackgroundColor=@Invalid()\n");
    expectDefaults();
    put("[ViewerPreferences]\nTransparencyType=99999999999999999999\nBackgroundColor=@Variant(\\0\\0\\xff)\n");
    expectDefaults();
}

TEST_F(DamagedSettings, WithNonsenseInAnElementCanBeEdited)
{
    put("[TreeViewPreferences]\nNode%20Type\\family=\nNode%20Type\\size=-2147483648\nNode%20Type\\bold=perhaps\n"
        "Node%20Type\\italic=@Rect(0 0 1 1)\nNode%20Type\\underline=\nNode%20Type\\red=900\nNode%20Type\\green=-4\n"
        "Node%20Type\\blue=blue\nNode%20Type\\show=never\n");
    const DisplayElement element = store().loadElements(SoPreferenceStore::TreeViewGroup)["Node Type"];
    EXPECT_EQ(element.font.pointSize(), 10);
    EXPECT_TRUE(element.color.isValid());
    SoTreeViewPreferences page;
    page.show();
    page.reInit();
    page.save();
    SoViewerPreferences viewerPage;
    viewerPage.reInit();
    viewerPage.save();
    EXPECT_EQ(store().loadElements(SoPreferenceStore::TreeViewGroup)["Node Type"].font.pointSize(), 10);
}

TEST_F(DamagedSettings, WithAHugeFontReadAsAnOrdinaryOne)
{
    DisplayElementMap elements = store().defaultElements(SoPreferenceStore::TreeViewGroup);
    elements["Node Type"].font.setPointSize(2000000);
    store().saveElements(SoPreferenceStore::TreeViewGroup, elements);
    EXPECT_EQ(store().loadElements(SoPreferenceStore::TreeViewGroup)["Node Type"].font.pointSize(), 10);
}

} // namespace
