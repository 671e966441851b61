#pragma once

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SceneFileHandler.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/panels/SoNodescopeEdition.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <tests/nodescope/tree/TreeFixture.h>
#include <vexel/actions/SoWriteAction.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoSeparator.h>

#include <QAction>
#include <QDockWidget>
#include <QTest>

#include <cstdlib>

/** Displays scenes below a selection node, and does nothing with files. */
class SceneShower : public SceneFileHandler {
public:
    explicit SceneShower(SoSelection& selection, SoCommandManager& manager) : m_selection(selection), m_manager(manager)
    {
    }

    void setScene(SoNode* scene, bool clearsUndo) override
    {
        if (clearsUndo)
            m_manager.clearUndoCommand();
        m_selection.removeAllChildren();
        if (scene)
            m_selection.addChild(scene);
    }
    bool newScene() override { return false; }
    void openFile(const QString&) override {}
    void openRecentFile(const QString&) override {}
    void reload() override {}
    void save() override {}
    void saveAs(SoNode*) override {}

private:
    SoSelection& m_selection;
    SoCommandManager& m_manager;
};

/** A tree view with the command manager and main frame that edit it. */
class EditTest : public TreeTest {
protected:
    void SetUp() override
    {
        TreeTest::SetUp();
        frame.setUp(&manager, SoNodescopeMainFrame::Hosting::Standalone);
        manager.initialize(&frame);
        files = std::make_unique<SceneShower>(*selection, manager);
        frame.setSceneFiles(files.get());
        manager.setTreeView(view.get());
        manager.setNodeEdition(new SoNodescopeEdition(&frame, new QDockWidget(&frame), new QDockWidget(&frame)));
        QObject::connect(view.get(), &SoNodescopeTreeView::rowSelected, &manager, [this](const SoTreeViewItem* row) {
            manager.selectedNodeChanged(row ? row->node() : nullptr);
        });
    }
    void TearDown() override
    {
        manager.clearUndoCommand();
        manager.setTreeView(nullptr);
        TreeTest::TearDown();
        SoPreferenceStore::deleteInstance();
    }

    QAction& action(ActionId id) { return *frame.action(id); }
    /** Makes a row current. */
    void choose(std::initializer_list<int> places) { view->setCurrentItem(row(places)); }
    /** The scene as a file would hold it; empty for none. */
    std::string text() const
    {
        if (selection->getNumChildren() == 0)
            return std::string();
        SoOutput output;
        void* buffer = std::malloc(1024);
        std::size_t size = 1024;
        output.setBuffer(buffer, size, std::realloc);
        SoWriteAction(&output).apply(selection->getChild(0));
        output.getBuffer(buffer, size);
        const std::string all(static_cast<const char*>(buffer), size);
        std::free(buffer);
        return all;
    }
    static SoGroup* group(SoNode* node) { return static_cast<SoGroup*>(node); }

    SoNodescopeMainFrame frame;
    SoCommandManager manager;
    std::unique_ptr<SceneShower> files;
};
