#pragma once

#include <extension/NscShell.h>
#include <nodescope/entry/EntryFunctions.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/viewer/SoQt.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

/** An example host in this process; no plug-ins. */
class HostTest : public testing::Test {
protected:
    HostTest()
    {
        QFile file(m_folder.filePath("empty.xml"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<configuration></configuration>\n");
        SoPreferences::setValue("VXL_NODESCOPE_CONFIGURATION_FILE", file.fileName());
        SoQt::init(nullptr);
    }
    ~HostTest() override
    {
        SoQt::finish();
        SoPreferences::removeValue("VXL_NODESCOPE_CONFIGURATION_FILE");
    }

    static SoNodescopeTreeView& tree() { return *SoNodescopeViewer::getInstance()->treeView(); }
    static SoNodescopeMainFrame& frame() { return SoNodescopeViewer::getInstance()->mainFrame(); }

    static SoTreeViewItem* rowOf(SoTreeViewItem* parent, const char* name)
    {
        parent->setExpanded(true);
        for (int i = 0; i < parent->childCount(); ++i) {
            auto* row = static_cast<SoTreeViewItem*>(parent->child(i));
            if (row->node()->getName() == SbName(name))
                return row;
        }
        ADD_FAILURE() << "no row of that name: " << name;
        return nullptr;
    }
    static SoTreeViewItem* topRow() { return static_cast<SoTreeViewItem*>(tree().topLevelItem(0)); }

    QTemporaryDir m_folder;
};
