#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/tree/NodekitPart.h>
#include <nodescope/tree/RowList.h>

#include <QTreeWidgetItem>

class SbName;
class SoBaseKit;
class SoField;
class SoNode;
class TreeStyle;

/**
 * A row of the tree view: one node, reached one way. A node that is shared has several rows.
 *
 * The row neither owns nor references its node. Its texts are asked of the node when they are painted.
 */
class NODESCOPE_API SoTreeViewItem : public QTreeWidgetItem {
public:
    enum Column { TypeColumn, NameColumn, ReferenceCountColumn, ReferenceIconColumn, BookmarkColumn, ColumnCount };

    /**
     * @param sourceField  the field of the parent row's node that holds the node; null for a child
     * @param kit          the nodekit whose catalog may describe the node; null for none
     */
    SoTreeViewItem(SoNode* node, SoField* sourceField, SoTreeViewItem* futureParent, SoBaseKit* kit);
    SoTreeViewItem(QTreeWidget* view, SoNode* node, SoField* sourceField = nullptr, SoBaseKit* kit = nullptr);
    SoTreeViewItem(QTreeWidgetItem* parent, SoNode* node, SoField* sourceField = nullptr, SoBaseKit* kit = nullptr);
    SoTreeViewItem(QTreeWidget* view, QTreeWidgetItem* preceding, SoNode* node, SoField* sourceField = nullptr,
                   SoBaseKit* kit = nullptr);
    SoTreeViewItem(QTreeWidgetItem* parent, QTreeWidgetItem* preceding, SoNode* node, SoField* sourceField = nullptr,
                   SoBaseKit* kit = nullptr);
    ~SoTreeViewItem() override;

    QVariant data(int column, int role) const override;

    /** Removes the i-th child row without deleting it; nothing when there are fewer. */
    virtual void removeChildAt(int i);
    virtual void removeChild(QTreeWidgetItem* child);
    virtual void addChild(QTreeWidgetItem* child);
    virtual int itemKind() const { return 1001; }
    virtual SoNode* node() const { return m_node; }
    /** The parent row's node; null for a top-level row. */
    virtual SoNode* parentNode() const;
    /** True below a nodekit, whose catalog then describes the node. */
    virtual bool hasPartRecord() const { return m_hasKit; }
    virtual bool isPart() const;
    /** Number in the kit's catalog; -1 when the node is no part. */
    virtual int partNumber() const;
    virtual SbName parentPartName() const;
    virtual SbName partName() const;
    virtual bool isPublicPart() const;
    /** The nodekit nearest above; null for none. */
    virtual SoBaseKit* kit() const;
    /** Marks the row with an arrow for as long as its node is shared, or never. */
    virtual void updateReferenceIcon(bool show);

    /** An ignored row stands for a hidden reference: it is grey and not counted among its siblings. */
    void setIgnored(bool isIgnored);
    bool isIgnored() const { return m_isIgnored; }
    /** Only a child can be ignored: not the root, nor a node held in a field. */
    bool acceptsIgnoring() const { return parent() && !m_sourceField; }
    void setCounted(bool isCounted);
    bool isCounted() const { return m_isCounted; }
    /** False while the row is the hidden duplicate of a shared node. */
    bool isActive() const { return m_isActive; }
    void setActive(bool isActive) { m_isActive = isActive; }
    bool isBookmarked() const { return m_isBookmarked; }
    void setBookmarked(bool isBookmarked);

    void setIndex(int index);
    /** Number of the row among its counted siblings; -1 for a row that is not counted. Also data of Qt::UserRole. */
    int storedIndex() const;
    /** The numbers of the child rows hold no more: they are given anew when one is asked for. */
    void renumberChildrenLater() { m_childrenAreNumbered = false; }

    int referenceCount() const;
    SoField* sourceField() const { return m_sourceField; }
    bool fromField() const { return m_sourceField != nullptr; }
    /** True when this row or a row above it was reached through a field. */
    bool inFieldSubtree() const { return m_inFieldSubtree; }
    /** What the kit says of the node; to be asked only of a row that has a part record. */
    NodekitPart partRecord() const { return NodekitPart(*kit(), *m_node); }

    /** The rows of the same node while its references are hidden; null otherwise. */
    const RowList* references() const { return m_isActive ? nullptr : m_list; }

    SoTreeViewItem* parentRow() const;
    SoTreeViewItem* firstChild() const;
    SoTreeViewItem* nextSibling() const;
    SoTreeViewItem* previousSibling() const;
    /** Place among all siblings, found near the place where the row was last seen. */
    int position() const;
    SoTreeViewItem* childRow(int i) const { return static_cast<SoTreeViewItem*>(child(i)); }
    using QTreeWidgetItem::childCount;
    /** Number of child rows: all, or those that are not ignored. */
    int childCount(bool all) const;
    /** The i-th counted child row, or the i-th one when the view shows ignored rows; null when there are fewer. */
    SoTreeViewItem* countedChild(int i) const;
    /** Inserts a row with all below it at a place among all children. */
    void insertRow(int place, SoTreeViewItem* row);
    /** Puts rows with all below them behind the last child row. */
    void appendRows(const QList<QTreeWidgetItem*>& rows);
    /** Deletes the child rows, or only those that are no field rows. */
    void deleteChildren(bool keepFieldRows);
    /** Deletes @p count child rows from a place on. */
    void deleteChildren(int first, int count);
    /**
     * The row that shows @p node through @p field at the index-th counted place, -1 for the last; null for none.
     * @param ignored  receives whether that row is ignored
     */
    SoTreeViewItem* findChild(const SoNode* node, const SoField* field, int index, bool& ignored) const;

    /** True when some row above @p row shows the node of this row. */
    bool showsAncestorNode(const SoTreeViewItem* row) const;
    /** The rows from the top-level row down to this one. */
    QList<SoTreeViewItem*> ancestorPath() const;
    /** Negative when @p a stands before @p b in the tree, positive behind it, 0 for one above the other. */
    static int compareSiblingOrder(const SoTreeViewItem* a, const SoTreeViewItem* b);

    /** True for a row whose child rows were not made yet. */
    bool hasPendingChildren() const { return m_hasPendingChildren; }
    void setPendingChildren(bool isPending);

private:
    friend class RowList;

    void initialise(const SoTreeViewItem* parent, const SoBaseKit* kit);
    bool viewShowsIgnored() const;
    void numberChildren() const;
    SoTreeViewItem* takeRow(int place);
    QVariant displayText(int column) const;
    int shownReferenceCount() const;
    /** Whether the row has the look of rows that come from fields. */
    bool looksFromField(const TreeStyle& style) const;
    const TreeStyle* style() const;

    SoNode* m_node;
    SoField* m_sourceField;
    RowList* m_list = nullptr; ///< the registry's list of this row; null while the registry does not keep it
    SoTreeViewItem* m_nextInList = nullptr;
    SoTreeViewItem* m_previousInList = nullptr;
    mutable int m_index = 0;
    mutable int m_position = 0;
    int m_ignoredChildren = 0;
    bool m_inFieldSubtree : 1;
    bool m_isIgnored : 1;
    bool m_isBookmarked : 1;
    bool m_isActive : 1;
    bool m_isCounted : 1;
    bool m_hasPendingChildren : 1;
    bool m_marksReferences : 1;
    bool m_hasKit : 1;
    mutable bool m_childrenAreNumbered : 1;
};
