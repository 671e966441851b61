#pragma once

#include "PreferenceFixture.h"

#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/preferences/SoTreeViewState.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>

#include <QAction>
#include <QStringList>

/** Has the slots on rows, and writes down the calls. */
class RowCommands : public QObject {
    Q_OBJECT
public:
    QStringList takeCalls() { return std::exchange(m_calls, {}); }

public slots:
    void treeDeleteNode() { m_calls << "treeDeleteNode"; }
    void expandAll() { m_calls << "expandAll"; }
    void treeAddNode() { m_calls << "treeAddNode"; }
    void saveSubSceneGraph() { m_calls << "saveSubSceneGraph"; }
    void setNodeOverview() { m_calls << "setNodeOverview"; }
    void cutNode() { m_calls << "cutNode"; }
    void copyNode() { m_calls << "copyNode"; }
    void pasteNode() { m_calls << "pasteNode"; }
    void ignoreEnable() { m_calls << "ignoreEnable"; }
    void showAllReferences() { m_calls << "showAllReferences"; }
    void removeAllReferences() { m_calls << "removeAllReferences"; }
    void nextReference() { m_calls << "nextReference"; }
    void previousReference() { m_calls << "previousReference"; }

private:
    QStringList m_calls;
};

/** A tree in a main frame, with its state. */
class TreeStateTest : public PreferenceTest {
protected:
    TreeStateTest()
    {
        SoDB::init();
        m_frame.setUp(&m_commands, SoNodescopeMainFrame::Hosting::Standalone);
        m_frame.setCentralWidget(m_view);
        const std::string scene = "Separator { DEF a Material { } Group { USE a } Cube { } File { } WWWInline { } "
                                  "IndexedFaceSet { vertexProperty VertexProperty { } } }";
        SoInput in;
        in.setBuffer(scene.data(), scene.size());
        m_root = SoDB::readAll(&in);
        m_root->ref();
        m_view->reset(m_root);
    }
    ~TreeStateTest() override
    {
        m_view->reset(nullptr);
        m_root->unref();
    }

    QAction& action(ActionId id) { return *m_frame.action(id); }
    /** The texts of the enabled ones of the actions that depend on the row. */
    std::string enabled()
    {
        QStringList texts;
        for (const ActionId id : {ActionId::Delete, ActionId::SetIgnoredEnable, ActionId::ShowAllReferences,
                                  ActionId::HideAllReferences, ActionId::NextReference, ActionId::PreviousReference}) {
            if (action(id).isEnabled())
                texts << action(id).text();
        }
        return texts.join(", ").toStdString();
    }
    SoTreeViewItem* top() { return static_cast<SoTreeViewItem*>(m_view->topLevelItem(0)); }
    SoTreeViewItem* row(int place) { return top()->childRow(place); }
    void makeCurrent(SoTreeViewItem* row) { m_view->setCurrentItem(row); }

    RowCommands m_commands;
    SoNodescopeMainFrame m_frame;
    SoNodescopeTreeView* m_view = new SoNodescopeTreeView;
    SoTreeViewState* m_state = new SoTreeViewState(*m_view, m_frame, m_commands);
    SoSeparator* m_root = nullptr;
};
