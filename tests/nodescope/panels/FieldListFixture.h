#pragma once

#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoNodescopeList.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/io/SoDB.h>

#include <gtest/gtest.h>

#include <memory>

/** A field list with containers of the test's own. */
class FieldListTest : public testing::Test {
protected:
    void SetUp() override
    {
        SoDB::init();
        list = std::make_unique<SoNodescopeList>();
        list->resize(700, 400);
    }
    void TearDown() override
    {
        list.reset();
        SoPreferenceStore::deleteInstance();
    }

    SoFieldItem* add(SoFieldContainer& container, const char* field, bool isPart = false)
    {
        const int index = container.getFieldData().getIndex(SbName(field));
        auto* row = new SoFieldItem(container, index, nullptr, isPart);
        list->addTopLevelItem(row);
        return row;
    }
    static QString value(const SoFieldItem* row) { return row->text(SoFieldItem::ValueColumn); }

    std::unique_ptr<SoNodescopeList> list;
};
