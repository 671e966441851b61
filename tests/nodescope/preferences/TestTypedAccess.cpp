#include "PreferenceFixture.h"

TEST_F(PreferenceTest, MissingKeysReadAsTheirDefault)
{
    bool exists = true;
    EXPECT_TRUE(store().readBool("/a/b", true, &exists));
    EXPECT_FALSE(exists);
    EXPECT_FALSE(store().readBool("/a/b", false));
    EXPECT_EQ(store().readInt("/a/i", 32767, &(exists = true)), 32767);
    EXPECT_FALSE(exists);
    EXPECT_EQ(store().readString("/a/s", "none", &(exists = true)), "none");
    EXPECT_FALSE(exists);
    EXPECT_EQ(store().readStringList("/a/l", &(exists = true)), QStringList());
    EXPECT_FALSE(exists);
}

TEST_F(PreferenceTest, WrittenKeysAreReadBack)
{
    store().writeBool("/a/b", false);
    store().writeInt("/a/i", -7);
    store().writeString("/a/s", QString::fromUtf8("gr\xC3\xBC\xC3\x9F, \"x\"\n"));
    m_disk.setValue("/a/l", QStringList{"one", "two"});

    bool exists = false;
    EXPECT_FALSE(store().readBool("/a/b", true, &exists));
    EXPECT_TRUE(exists);
    EXPECT_EQ(store().readInt("/a/i", 1, &(exists = false)), -7);
    EXPECT_TRUE(exists);
    EXPECT_EQ(store().readString("/a/s", {}, &(exists = false)), QString::fromUtf8("gr\xC3\xBC\xC3\x9F, \"x\"\n"));
    EXPECT_TRUE(exists);
    EXPECT_EQ(store().readStringList("/a/l", &(exists = false)), (QStringList{"one", "two"}));
    EXPECT_TRUE(exists);
}

TEST_F(PreferenceTest, AnEmptyTextIsAValueToo)
{
    store().writeString("/a/s", "");
    bool exists = false;
    EXPECT_EQ(store().readString("/a/s", "default", &exists), "");
    EXPECT_TRUE(exists);
}

TEST_F(PreferenceTest, NothingIsCached)
{
    store().writeInt("/a/i", 1);
    m_disk.setValue("/a/i", 2);
    EXPECT_EQ(store().readInt("/a/i", 0), 2);
    m_disk.remove("/a/i");
    EXPECT_EQ(store().readInt("/a/i", 0), 0);
}

TEST_F(PreferenceTest, DeletingTheStorePutsItsValuesOnDisk)
{
    SoPreferenceStore* const first = SoPreferenceStore::getInstance();
    EXPECT_EQ(first, SoPreferenceStore::getInstance());
    first->writeInt("/a/i", 5);
    SoPreferenceStore::deleteInstance();

    const QSettings fresh(m_disk.fileName(), QSettings::IniFormat);
    EXPECT_EQ(fresh.value("a/i").toInt(), 5);
    EXPECT_EQ(store().readInt("/a/i", 0), 5);
}

TEST_F(PreferenceTest, DeletingTheStoreTwiceIsHarmless)
{
    store();
    SoPreferenceStore::deleteInstance();
    SoPreferenceStore::deleteInstance();
    EXPECT_NE(SoPreferenceStore::getInstance(), nullptr);
}
