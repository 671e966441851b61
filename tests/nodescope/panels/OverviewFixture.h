#pragma once

#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoNodeOverview.h>
#include <nodescope/panels/SoNodeOverviewList.h>
#include <nodescope/panels/SoTabNodeOverview.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <vexel/fields/SoField.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

/** A node overview with nodes that the test owns. */
class OverviewTest : public testing::Test {
protected:
    void SetUp() override
    {
        SoDB::init();
        clearStore();
        overview = std::make_unique<SoTabNodeOverview>();
        overview->resize(700, 400);
        cube->ref();
        cube->setName("box");
    }
    void TearDown() override
    {
        overview.reset();
        deleteCube();
        clearStore();
        SoPreferenceStore::deleteInstance();
    }

    void deleteCube()
    {
        if (cube)
            cube->unref();
        cube = nullptr;
    }
    SoNodeOverview& page() const { return *overview->currentPage(); }
    template <class Widget>
    Widget* find(const char* name) const
    {
        return page().findChild<Widget*>(name);
    }
    QString label(const char* name) const { return find<QLabel>(name)->text(); }
    QLineEdit* name() const { return find<QLineEdit>("m_nodeNameValue"); }
    void click(const char* button) const { QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton); }

    std::unique_ptr<SoTabNodeOverview> overview;
    SoCube* cube = new SoCube;

private:
    static void clearStore() { QSettings("Nodescope", "Nodescope").clear(); }
};
