#pragma once

#include <nodescope/NodescopeApi.h>

#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>

#include <memory>

class CommandHistory;
class FieldWatches;
class NscCommand;
class NscFindDialog;
class OverviewTabs;
class QTreeWidgetItem;
class SoFieldContainer;
class SoFieldItem;
class SoNode;
class SoNodescopeAddDialog;
class SoNodescopeEdition;
class SoNodescopeMainFrame;
class SoNodescopeTreeView;
class SoTreeViewItem;

/** The hub of what the user does to the scene: the actions of the main frame end here, and every change passes the
 * history here. */
class NODESCOPE_API SoCommandManager : public QObject {
    Q_OBJECT
public:
    explicit SoCommandManager(QObject* parent = nullptr);
    ~SoCommandManager() override;

    /** Ties the history to the frame's undo and redo actions. To be called once, after the frame is set up. */
    void initialize(SoNodescopeMainFrame* frame);

    /** The tree that the actions on rows work on; null for none. Not owned. */
    void setTreeView(SoNodescopeTreeView* treeView);

    SoNodescopeTreeView* treeView() const;

    /** The panels of fields; null for none. Not owned. */
    void setNodeEdition(SoNodescopeEdition* edition);

    /** Whether the scene was changed through a command since the history was last cleared. */
    bool isModified() const;

public slots:
    void reloadFile();
    void closeApp();
    void openFile();
    void openFileRecent();
    void newFile();
    void saveFile();
    void saveAsFile();
    void closeFile();
    void printFile();
    void printQt();

    /** Exchanges the node selected in the 3D view with the system clipboard; not undoable. */
    ///@{
    void cut();
    void copy();
    void paste();
    ///@}

    /** Displays a scene; with @p clearUndoCommand nothing can be undone after that. */
    void setScene(SoNode* scene, bool clearUndoCommand = true);

    void undo();
    void redo();
    /** Takes the command over and executes it; answers what it answers. */
    bool addCommand(NscCommand* command);
    void clearUndoCommand();

    // Slots on a row take the tree's current one when none is given, and do nothing when there is none.

    /** Sets the override flag of the node that the node overview shows. */
    void nodeSetOverride(bool on);
    void treeDeleteNode(SoTreeViewItem* itemToDelete = nullptr);
    /** Moves a node; see SoTreeMoveNodeCommand. */
    void treeMoveNode(SoTreeViewItem* itemToMove, SoTreeViewItem* itemInsertAfter, bool spaceBarPressed);
    /** Adds a new node of a type at the current row. */
    void treeInsertNode(const QString& typeName);
    /** The current row's node, or a copy of it, goes into a clipboard of the inspector's own. */
    ///@{
    void cutNode();
    void copyNode();
    /** Adds the node in the clipboard, the same one each time. */
    void pasteNode();
    ///@}
    /** Marks the current row as ignored, or takes the mark away. */
    void ignoreEnable();
    /** Shows the dialog that adds nodes at a row. */
    void treeAddNode(SoTreeViewItem* item = nullptr);
    /** Writes the graph below a row to a file that the user names. */
    void saveSubSceneGraph(SoTreeViewItem* item = nullptr);
    void expandAll(QTreeWidgetItem* startItem = nullptr);
    /** Without a row, those of all shared nodes. */
    void showAllReferences(SoTreeViewItem* item = nullptr);
    void removeAllReferences(SoTreeViewItem* item = nullptr);
    void nextReference();
    void previousReference();
    void toggleBookmark();
    void nextBookmark();
    void previousBookmark();
    void clearBookmark();

    /** Shows the dialog that asks what to look for, and gives it the keyboard. */
    void showFindDialog();
    /** Goes to the next row that matches the dialog's settings. The text is that of the main window's find box while
     * the dialog is hidden. */
    ///@{
    void find();
    void findNext();
    void findPrevious();
    ///@}

    /** Shows the rows whose category is in the mask. */
    void setFilter(int filter);

    /** Lets the user change the preferences, in a modal dialog. */
    void editPreferences();
    /** Shows the about box, modally. */
    void launchAboutNodescopeFrame();
    /** Opens the user's guide in the desktop's browser. */
    void launchNodescopeHelpViewer();
    /** Shows a row's node in the node overview, on a new page or the current one. */
    void setNodeOverview(SoTreeViewItem* item = nullptr, bool addTab = true);
    /** Shows a container on the current page, and lets the tree follow. */
    void selectedNodeChanged(SoFieldContainer* node);
    /** Makes the row of the current page of the node overview the tree's current one. */
    void highlightNodeItem();
    /** Closes a page of the node overview unless it is the only one; -1: the current one. */
    void closeNodeOverview(int index = -1);
    /** A node has another name: whatever shows it follows. */
    void nodeNameChanged(SoNode* node);
    SoNodescopeEdition* getNodeEdition() const;
    /** Watches the field of a row, by default that of the current row of the node overview; fields that hold nodes are
     * not watched. With a place of the screen, only if that lies in the field watch. */
    ///@{
    void setFieldWatch(SoFieldItem* fieldItem = nullptr);
    void setFieldWatch(SoFieldItem* fieldItem, QPoint place);
    ///@}
    /** Removes an entry of the field watch, by default the current one. */
    void deleteFieldWatch(QTreeWidgetItem* entry = nullptr);
    /** Selects the node and the field of an entry of the field watch. */
    void setFieldEditorFromWatch(QTreeWidgetItem* entry);
    /** Shows in the node overview the row from which an entry of the field watch was made. */
    void setNodeOverviewFromWatch(QTreeWidgetItem* entry);
    /** The rows whose nodes the pages of the node overview show, in their order; null for a row that is gone. */
    QList<SoTreeViewItem*> getItemOverviewList() const;

private:
    SoTreeViewItem* currentRow() const;
    NscFindDialog& findDialog();
    void find(int flags);

    SoNodescopeMainFrame* m_frame = nullptr;
    // Dialogs are made when they are first needed, and owned by the main frame.
    QPointer<NscFindDialog> m_findDialog;
    QPointer<SoNodescopeAddDialog> m_addDialog;
    QPointer<SoNodescopeTreeView> m_treeView;
    std::unique_ptr<OverviewTabs> m_overviewTabs;
    FieldWatches* m_fieldWatches;
    CommandHistory* m_history;
    SoNode* m_clipboardNode = nullptr; ///< a copy, referenced
};
