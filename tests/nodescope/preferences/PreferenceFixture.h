#pragma once

#include <nodescope/preferences/SoPreferenceStore.h>

#include <QSettings>
#include <gtest/gtest.h>

/** Starts each test with an empty store; `m_disk` sees the same settings from outside. */
class PreferenceTest : public testing::Test {
protected:
    PreferenceTest() { m_disk.clear(); }
    ~PreferenceTest() override { SoPreferenceStore::deleteInstance(); }

    SoPreferenceStore& store() { return *SoPreferenceStore::getInstance(); }

    QSettings m_disk{"Nodescope", "Nodescope"};
};
