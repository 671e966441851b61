#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/tree/NodeRowRegistry.h>
#include <nodescope/tree/NscNodeInfo.h>
#include <nodescope/tree/TreeStyle.h>

#include <QTreeWidget>

#include <memory>

class CategoryFilter;
class ReferenceHiding;
class RowDrag;
class RowFactory;
class RowHighlighter;
class SoField;
class SoGraphTopologyManager;
class SoNode;
class SoPath;
class SoSelection;
class SoTreeViewItem;

/**
 * Shows the scene graph as a tree of rows, and keeps its current row in step with the 3D view and the other panels.
 *
 * The view never changes the graph itself: what the user does goes to the command manager.
 */
class NODESCOPE_API SoNodescopeTreeView : public QTreeWidget {
    Q_OBJECT
public:
    /** Rows beyond this number are not made at once: the children of a row are made when it is first opened. */
    static constexpr int MostRowsAtOnce = 2000000;

    explicit SoNodescopeTreeView(QWidget* parent = nullptr);
    ~SoNodescopeTreeView() override;

    /** The selection node of the 3D view: the scene stands below it, and rows are highlighted through it. */
    void setSceneGraph(SoSelection* root);
    SoSelection* selectionRoot() const { return m_root; }

    /** Shows @p node and all below it in place of all rows; nothing for null. */
    void reset(SoNode* node);
    /**
     * Makes a row with all rows below it. Null for a null node.
     * @param parentRow  null for a top-level row
     * @param position   place among the siblings; -1 for behind the last counted one
     */
    SoTreeViewItem* createItem(SoNode* node, SoTreeViewItem* parentRow, SoField* sourceField, int position);
    /** Makes the child rows of a row anew. */
    void buildChildren(SoTreeViewItem* row);
    /** Makes the child rows of a row whose children are pending. */
    void makePendingChildren(SoTreeViewItem* row);
    /** True when there were too many rows to make them at once. */
    bool isBuiltOnDemand() const;

    NodeRowRegistry& rowRegistry() { return m_registry; }
    /** What keeps the rows in step with the graph. */
    SoGraphTopologyManager& topologyManager() { return *m_topologyManager; }
    const TreeStyle& style() const { return m_style; }
    using QTreeWidget::style;
    bool showsIgnoredRows() const { return m_showsIgnoredRows; }

    SoTreeViewItem* currentRow() const;
    using QTreeWidget::indexFromItem;
    using QTreeWidget::itemFromIndex;
    /**
     * The row that a path leads to, from its node @p firstNode on, which is that of a top-level row; the last row on
     * the way when the path goes on where no rows are. Null when it begins elsewhere.
     */
    SoTreeViewItem* rowForPath(const SoPath& path, int firstNode = 0);
    /** Whether the current row is marked in the 3D view. */
    void setHighlightingEnabled(bool on);
    /**
     * The next row behind the current one, round and round, whose key in a column matches; null for none.
     * @param column  of NodeSearch; any other column is empty in every row
     * @param flags   a bit set of NodeSearch
     */
    SoTreeViewItem* find(int column, const QString& text, int flags);
    /** Asks for a new node of a type at the current row. */
    void insertNode(const QString& typeName);
    /** Makes a row current and visible: all rows above it are expanded. */
    void revealRow(SoTreeViewItem* row);
    /** Makes a row current and visible after the current one went, unless it is hidden as a reference. */
    void reselectRow(SoTreeViewItem* row);
    /** Makes a row current and visible and marks it in the 3D view, to follow another panel; nobody is told. */
    void showRow(SoTreeViewItem* row);
    /** Makes a row current for the time of a change; nobody is told. */
    void makeCurrentSilently(SoTreeViewItem* row);
    /** Marks the row's node in the 3D view, and nothing else. */
    void highlightRow(SoTreeViewItem* row);
    /** Makes the row current that stands for a picked path; clears the selection when there is none. */
    void selectPickedPath(const SoPath& path);

    void reapplyFilter();
    /** Whether a row's node has further rows, and whether those are shown. */
    enum class References { None, Shown, Hidden };
    References references(const SoTreeViewItem& row);
    void showAllReferences(SoTreeViewItem* row = nullptr);
    void removeAllReferences(SoTreeViewItem* row = nullptr);
    SoTreeViewItem* nextReference();
    SoTreeViewItem* previousReference();
    void toggleBookmark();
    /** Expands a row and all below it; the whole tree for null. */
    void expandBelow(QTreeWidgetItem* row);

signals:
    /** The viewer got a new scene. */
    void newSceneGraph(SoNode* root);
    /** The current row changed; @p inNewTab when it was clicked with Shift. */
    void rowSelected(SoTreeViewItem* row, bool inNewTab);
    /** A new node of a type is wanted at the current row. */
    void insertRequested(const QString& typeName);
    /** The user wants a row to be deleted. */
    void deleteRequested(SoTreeViewItem* row);
    /** The view got the keyboard. */
    void focusReceived();
    /** A menu is wanted; the place of the event is one of the viewport. */
    void contextMenuRequested(QContextMenuEvent* event);
    /** The user dropped a row on another; @p isSpaceHeld puts it behind that one. */
    void moveRequested(SoTreeViewItem* row, SoTreeViewItem* target, bool isSpaceHeld);
    /** References were hidden or shown. */
    void referencesChanged();
    /** Something that the user should know about what the tree shows. */
    void statusMessage(const QString& text);

public slots:
    /** Reads fonts, colours and shown columns from the preference store. */
    void initPreferences();
    /** Writes them there. */
    void setPreferences();
    void selectChange(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void onItemClicked(QTreeWidgetItem* item, int column);
    void onCustomContextMenu(const QPoint& place);
    void resizeAllColumns();
    SoTreeViewItem* nextBookmark();
    SoTreeViewItem* previousBookmark();
    void clearBookmark();
    /** Shows the rows whose category is in the mask. */
    void setFilter(int filter);
    int getFilter() const;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    SoTreeViewItem* stepReference(bool forward);
    SoTreeViewItem* stepBookmark(bool forward);
    void refreshSelection();
    void selectionPicked(SoSelection& selection);
    void resizeColumnsNow();
    void notifySelection(SoTreeViewItem* row);
    bool mayHighlight(const SoTreeViewItem& row) const;

    SoSelection* m_root = nullptr;
    NodeRowRegistry m_registry;
    TreeStyle m_style;
    std::unique_ptr<CategoryFilter> m_filter;
    std::unique_ptr<RowFactory> m_factory;
    std::unique_ptr<ReferenceHiding> m_references;
    std::unique_ptr<RowHighlighter> m_highlighter;
    std::unique_ptr<SoGraphTopologyManager> m_topologyManager;
    std::unique_ptr<RowDrag> m_drag;
    bool m_shiftClicked = false;
    bool m_notifiesSelection = true;
    bool m_resizePending = false;
    bool m_showsIgnoredRows = false;
};
