#include "PreferenceFixture.h"

namespace {

struct Switch {
    const char* key;
    bool defaultValue;
    bool (SoPreferenceStore::*read)(const QString&) const;
    void (SoPreferenceStore::*write)(const QString&, bool);
};

const Switch Switches[] = {
    {"/ShowCatalogPart", false, &SoPreferenceStore::readShowCatalogPart, &SoPreferenceStore::writeShowCatalogPart},
    {"/HighlightSelectedNode", true, &SoPreferenceStore::readHighlightSelectedNode,
     &SoPreferenceStore::writeHighlightSelectedNode},
    {"/RealNodekitsCounter", false, &SoPreferenceStore::readRealNodekitsCounter,
     &SoPreferenceStore::writeRealNodekitsCounter},
};

} // namespace

TEST_F(PreferenceTest, SwitchesHaveTheirDefaultsAndPersist)
{
    for (const Switch& s : Switches) {
        const QString group = SoPreferenceStore::TreeViewGroup;
        EXPECT_EQ((store().*s.read)(group), s.defaultValue) << s.key;
        (store().*s.write)(group, !s.defaultValue);
        EXPECT_EQ((store().*s.read)(group), !s.defaultValue) << s.key;
        EXPECT_EQ(m_disk.value(group + s.key).toBool(), !s.defaultValue) << s.key;
        EXPECT_EQ((store().*s.read)(SoPreferenceStore::NodeOverviewGroup), s.defaultValue)
            << s.key << " of another group";
    }
}

TEST_F(PreferenceTest, ColumnWidthsHaveTheDefaultsOfTheirList)
{
    const struct {
        const char* group;
        std::vector<int> widths;
    } lists[] = {
        {SoPreferenceStore::NodeOverviewGroup, {20, 20, 0, 0, -1, -1, -1}},
        {SoPreferenceStore::FieldWatchGroup, {0, 0, -1, -1, 0, -1, -1}},
        {"/Elsewhere/", {-1, -1}},
    };
    for (const auto& list : lists) {
        for (int column = 0; column < int(list.widths.size()); ++column)
            EXPECT_EQ(store().readColumnWidth(list.group, column), list.widths[std::size_t(column)])
                << list.group << column;
        EXPECT_EQ(store().readColumnWidth(list.group, -1), -1);
    }
}

TEST_F(PreferenceTest, ColumnWidthsPersistOneByOne)
{
    store().writeColumnWidth(SoPreferenceStore::FieldWatchGroup, 1, 133);
    store().writeColumnWidth(SoPreferenceStore::FieldWatchGroup, 12, 7);
    EXPECT_EQ(store().readColumnWidth(SoPreferenceStore::FieldWatchGroup, 0), 0);
    EXPECT_EQ(store().readColumnWidth(SoPreferenceStore::FieldWatchGroup, 1), 133);
    EXPECT_EQ(store().readColumnWidth(SoPreferenceStore::FieldWatchGroup, 12), 7);
    EXPECT_EQ(store().readColumnWidth(SoPreferenceStore::NodeOverviewGroup, 1), 20);
    EXPECT_EQ(m_disk.value("/FieldWatchPreferences//ListColumnWidth/1").toInt(), 133);
}
