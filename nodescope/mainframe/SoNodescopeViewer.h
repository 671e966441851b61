#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/mainframe/SceneDocument.h>
#include <nodescope/mainframe/SceneFiles.h>
#include <nodescope/preferences/PreferenceRecord.h>

#include <QObject>
#include <memory>
#include <vector>

class NscServicesImpl;
class SoFieldContainer;
class SoNodescopeEdition;
class SoNodescopeMainFrame;
class SoNodescopeTreeView;
class SbVec2s;
class SbViewportRegion;
class SoQtExaminerViewer;
class SoSelection;
class SoTreeViewItem;
class PanelPages;
class ShownPicture;

/**
 * The displayed scene: the selection node that stands above it, the tree view and the docks that show it, and its
 * files. There is one while an inspection runs.
 */
class NODESCOPE_API SoNodescopeViewer : public QObject, public SceneDocument {
    Q_OBJECT
public:
    /** The viewer, created on first use in the shell's main window. */
    static SoNodescopeViewer* getInstance();
    /** Deletes the viewer, if there is one; the scene goes with it unless somebody else holds it. */
    static void deleteInstance();
    ~SoNodescopeViewer() override;

    SoNodescopeMainFrame& mainFrame() const { return m_frame; }
    SoNodescopeTreeView* treeView() const { return m_treeView; }
    /** Root of what is displayed: the scene is its child, with what was pasted beside it. */
    SoSelection* selection() const { return m_selection; }
    SceneFiles& sceneFiles() { return m_sceneFiles; }
    /** The pages of the 3D view, if there is one, and of the panels. */
    std::vector<PreferenceRecord> preferencePages();
    /** Reads the preferences of the 3D view and the panels from the store. */
    void applyPreferences();

    /** Makes the row current whose node is under a place of the host's picture. Nothing when standalone, or while the
     * host's viewer uses the mouse for its camera. */
    void pick(const SbViewportRegion& region, SbVec2s cursor);

    /** Asks for a file and writes what is shown into it; see PictureExport. */
    void printFile();
    /** Shows what is shown on a page, and prints it; see PicturePrinter. */
    void printQt();

    SoNode* scene() const override;
    void setSceneGraph(SoNode* root, bool resetCommands) override;
    bool isModified() const override;

private:
    SoNodescopeViewer(SoNodescopeMainFrame& frame, NscServicesImpl& services);

    ShownPicture shownPicture() const;
    void makePanels();
    void makeExaminer();
    void makeEdition();
    void registerTreeState();
    void registerWatchState();
    void setHighlighting(bool on);
    void selectNode(SoTreeViewItem* row, bool inNewTab);
    void containerShown(SoFieldContainer* container);

    SoNodescopeMainFrame& m_frame;
    NscServicesImpl& m_services;
    SceneFiles m_sceneFiles;
    std::unique_ptr<SoQtExaminerViewer> m_examiner; ///< null on a host
    SoSelection* m_selection;
    SoNodescopeTreeView* m_treeView;
    std::unique_ptr<PanelPages> m_pages;
    SoNodescopeEdition* m_edition = nullptr;
    bool m_highlights = true;
};
