#include "SoTreeViewItem.h"
#include "SoNodescopeTreeView.h"
#include "detail/BuiltInImages.h"
#include "detail/RowTexts.h"

#include <vexel/nodekits/SoBaseKit.h>

#include <QIcon>

#include <algorithm>
#include <cstdlib>

namespace {

/** Whether others than paths refer to the node more than once: that a path to it is selected shares nothing. */
bool isShared(const SoNode& node)
{
    std::int64_t count = node.getRefCount();
    const AuditorList& auditors = node.getAuditors();
    for (std::size_t i = 0; count >= 2 && i < auditors.size(); ++i) {
        if (auditors.at(i).type == SoAuditorType::Path)
            count -= auditors.countAt(i);
    }
    return count >= 2;
}

} // namespace

SoTreeViewItem::SoTreeViewItem(SoNode* node, SoField* sourceField, SoTreeViewItem* futureParent, SoBaseKit* kit)
    : m_node(node), m_sourceField(sourceField)
{
    initialise(futureParent, kit);
}

SoTreeViewItem::SoTreeViewItem(QTreeWidget* view, SoNode* node, SoField* sourceField, SoBaseKit* kit)
    : QTreeWidgetItem(view), m_node(node), m_sourceField(sourceField)
{
    initialise(nullptr, kit);
}

SoTreeViewItem::SoTreeViewItem(QTreeWidgetItem* parent, SoNode* node, SoField* sourceField, SoBaseKit* kit)
    : QTreeWidgetItem(parent), m_node(node), m_sourceField(sourceField)
{
    initialise(static_cast<SoTreeViewItem*>(parent), kit);
}

SoTreeViewItem::SoTreeViewItem(QTreeWidget* view, QTreeWidgetItem* preceding, SoNode* node, SoField* sourceField,
                               SoBaseKit* kit)
    : QTreeWidgetItem(view, preceding), m_node(node), m_sourceField(sourceField)
{
    initialise(nullptr, kit);
}

SoTreeViewItem::SoTreeViewItem(QTreeWidgetItem* parent, QTreeWidgetItem* preceding, SoNode* node, SoField* sourceField,
                               SoBaseKit* kit)
    : QTreeWidgetItem(parent, preceding), m_node(node), m_sourceField(sourceField)
{
    initialise(static_cast<SoTreeViewItem*>(parent), kit);
}

void SoTreeViewItem::initialise(const SoTreeViewItem* parent, const SoBaseKit* kit)
{
    m_inFieldSubtree = m_sourceField || (parent && parent->m_inFieldSubtree);
    m_isIgnored = false;
    m_isBookmarked = false;
    m_isActive = true;
    m_isCounted = true;
    m_hasPendingChildren = false;
    m_childrenAreNumbered = false;
    m_marksReferences = false;
    m_hasKit = kit != nullptr;
    // Leaves are marked, so that the view does not remember each of them as expanded.
    setChildIndicatorPolicy(DontShowIndicator);
    if (auto* view = static_cast<SoNodescopeTreeView*>(treeWidget()))
        view->rowRegistry().enter(this);
}

SoTreeViewItem::~SoTreeViewItem()
{
    m_isIgnored = true;
    RowList::remove(this);
}

SoTreeViewItem* SoTreeViewItem::parentRow() const
{
    return static_cast<SoTreeViewItem*>(parent());
}

SoNode* SoTreeViewItem::parentNode() const
{
    const SoTreeViewItem* row = parentRow();
    return row ? row->node() : nullptr;
}

SoBaseKit* SoTreeViewItem::kit() const
{
    for (const SoTreeViewItem* above = m_hasKit ? parentRow() : nullptr; above; above = above->parentRow()) {
        if (above->m_node->isOfType(SoBaseKit::getClassTypeId()))
            return static_cast<SoBaseKit*>(above->m_node);
    }
    return nullptr;
}

bool SoTreeViewItem::isPart() const
{
    return m_hasKit && partRecord().isPart();
}

int SoTreeViewItem::partNumber() const
{
    return m_hasKit ? partRecord().number() : -1;
}

SbName SoTreeViewItem::parentPartName() const
{
    return m_hasKit ? partRecord().parentName() : SbName();
}

SbName SoTreeViewItem::partName() const
{
    return m_hasKit ? partRecord().name() : SbName();
}

bool SoTreeViewItem::isPublicPart() const
{
    return m_hasKit && partRecord().isPublic();
}

int SoTreeViewItem::referenceCount() const
{
    return m_node->getRefCount();
}

void SoTreeViewItem::removeChildAt(int i)
{
    if (SoTreeViewItem* row = i < 0 ? nullptr : childRow(i))
        removeChild(row);
}

void SoTreeViewItem::removeChild(QTreeWidgetItem* child)
{
    auto* row = static_cast<SoTreeViewItem*>(child);
    if (row->parentRow() != this)
        return;
    if (auto* view = static_cast<SoNodescopeTreeView*>(treeWidget()))
        view->rowRegistry().leave(row);
    takeRow(row->position());
}

SoTreeViewItem* SoTreeViewItem::takeRow(int place)
{
    auto* row = static_cast<SoTreeViewItem*>(takeChild(place));
    if (row->m_isIgnored)
        --m_ignoredChildren;
    renumberChildrenLater();
    if (childCount() == 0)
        setChildIndicatorPolicy(DontShowIndicator);
    return row;
}

void SoTreeViewItem::addChild(QTreeWidgetItem* child)
{
    insertRow(childCount(), static_cast<SoTreeViewItem*>(child));
}

void SoTreeViewItem::insertRow(int place, SoTreeViewItem* row)
{
    if (childCount() == 0)
        setChildIndicatorPolicy(DontShowIndicatorWhenChildless);
    row->m_position = place;
    insertChild(place, row);
    if (row->m_isIgnored)
        ++m_ignoredChildren;
    renumberChildrenLater();
    if (auto* view = static_cast<SoNodescopeTreeView*>(treeWidget()))
        view->rowRegistry().enter(row);
}

void SoTreeViewItem::appendRows(const QList<QTreeWidgetItem*>& rows)
{
    if (rows.isEmpty())
        return;
    setChildIndicatorPolicy(DontShowIndicatorWhenChildless);
    addChildren(rows);
    renumberChildrenLater();
    if (auto* view = static_cast<SoNodescopeTreeView*>(treeWidget())) {
        for (QTreeWidgetItem* row : rows)
            view->rowRegistry().enter(static_cast<SoTreeViewItem*>(row));
    }
}

void SoTreeViewItem::deleteChildren(bool keepFieldRows)
{
    int count = childCount();
    while (keepFieldRows && count > 0 && childRow(count - 1)->fromField())
        --count;
    deleteChildren(0, count);
}

void SoTreeViewItem::deleteChildren(int first, int count)
{
    if (first == 0 && count == childCount()) {
        qDeleteAll(takeChildren());
        m_ignoredChildren = 0;
        renumberChildrenLater();
        setChildIndicatorPolicy(DontShowIndicator);
        return;
    }
    for (int place = first + count - 1; place >= first; --place)
        delete takeRow(place);
}

void SoTreeViewItem::setPendingChildren(bool isPending)
{
    m_hasPendingChildren = isPending;
    setChildIndicatorPolicy(isPending ? ShowIndicator
                                      : (childCount() > 0 ? DontShowIndicatorWhenChildless : DontShowIndicator));
}

void SoTreeViewItem::setIgnored(bool isIgnored)
{
    if (m_isIgnored != isIgnored) {
        m_isIgnored = isIgnored;
        if (SoTreeViewItem* above = parentRow())
            above->m_ignoredChildren += isIgnored ? 1 : -1;
    }
    setCounted(!isIgnored);
}

void SoTreeViewItem::setCounted(bool isCounted)
{
    m_isCounted = isCounted;
    if (!isCounted)
        m_index = -1;
    if (SoTreeViewItem* above = parentRow())
        above->renumberChildrenLater();
}

void SoTreeViewItem::setBookmarked(bool isBookmarked)
{
    if (m_isBookmarked == isBookmarked)
        return;
    m_isBookmarked = isBookmarked;
    emitDataChanged();
}

void SoTreeViewItem::setIndex(int index)
{
    m_index = index;
}

int SoTreeViewItem::storedIndex() const
{
    if (const SoTreeViewItem* above = parentRow(); above && !above->m_childrenAreNumbered)
        above->numberChildren();
    return m_index;
}

bool SoTreeViewItem::viewShowsIgnored() const
{
    const auto* view = static_cast<const SoNodescopeTreeView*>(treeWidget());
    return view && view->showsIgnoredRows();
}

void SoTreeViewItem::numberChildren() const
{
    const bool countsAll = viewShowsIgnored();
    int number = 0;
    for (int i = 0; i < childCount(); ++i) {
        SoTreeViewItem* row = childRow(i);
        row->m_position = i;
        if (row->m_isCounted)
            row->m_index = number;
        if (countsAll || row->m_isCounted)
            ++number;
    }
    m_childrenAreNumbered = true;
}

int SoTreeViewItem::position() const
{
    const QTreeWidgetItem* above = parent();
    const QTreeWidget* view = treeWidget();
    const auto at = [&](int i) { return above ? above->child(i) : (view ? view->topLevelItem(i) : nullptr); };
    const int count = above ? above->childCount() : (view ? view->topLevelItemCount() : 0);
    // Insertions and removals move a row by little, so the search goes outwards from its last place.
    for (int distance = 0; distance < count; ++distance) {
        for (const int place : {m_position - distance, m_position + distance}) {
            if (place >= 0 && place < count && at(place) == this)
                return m_position = place;
        }
    }
    return -1;
}

SoTreeViewItem* SoTreeViewItem::firstChild() const
{
    return childRow(0);
}

SoTreeViewItem* SoTreeViewItem::nextSibling() const
{
    const int place = position() + 1;
    SoTreeViewItem* next =
        parent() ? parentRow()->childRow(place) : static_cast<SoTreeViewItem*>(treeWidget()->topLevelItem(place));
    if (next)
        next->m_position = place;
    return next;
}

SoTreeViewItem* SoTreeViewItem::previousSibling() const
{
    const int place = position() - 1;
    if (place < 0)
        return nullptr;
    SoTreeViewItem* previous =
        parent() ? parentRow()->childRow(place) : static_cast<SoTreeViewItem*>(treeWidget()->topLevelItem(place));
    previous->m_position = place;
    return previous;
}

int SoTreeViewItem::childCount(bool all) const
{
    return childCount() - (all ? 0 : m_ignoredChildren);
}

SoTreeViewItem* SoTreeViewItem::countedChild(int i) const
{
    if (i < 0)
        return nullptr;
    if (viewShowsIgnored() || m_ignoredChildren == 0)
        return childRow(i);
    for (int place = 0; place < childCount(); ++place) {
        if (childRow(place)->m_isCounted && i-- == 0)
            return childRow(place);
    }
    return nullptr;
}

SoTreeViewItem* SoTreeViewItem::findChild(const SoNode* node, const SoField* field, int index, bool& ignored) const
{
    int place = childCount() - 1;
    if (index >= 0) {
        const SoTreeViewItem* there = countedChild(index);
        place = there ? there->position() : childCount();
    } else {
        while (place > 0 && !childRow(place)->m_isCounted)
            --place;
    }
    for (bool isFirst = true; place >= 0 && place < childCount(); ++place, isFirst = false) {
        SoTreeViewItem* row = childRow(place);
        if (!isFirst && row->m_isCounted)
            break;
        if (row->m_node == node && row->m_sourceField == field) {
            ignored = row->m_isIgnored;
            return row;
        }
    }
    return nullptr;
}

bool SoTreeViewItem::showsAncestorNode(const SoTreeViewItem* row) const
{
    for (const SoTreeViewItem* above = row->parentRow(); above; above = above->parentRow()) {
        if (above->m_node == m_node)
            return true;
    }
    return false;
}

QList<SoTreeViewItem*> SoTreeViewItem::ancestorPath() const
{
    QList<SoTreeViewItem*> path;
    for (auto* row = const_cast<SoTreeViewItem*>(this); row; row = row->parentRow())
        path.append(row);
    std::reverse(path.begin(), path.end());
    return path;
}

int SoTreeViewItem::compareSiblingOrder(const SoTreeViewItem* a, const SoTreeViewItem* b)
{
    const QList<SoTreeViewItem*> pathA = a->ancestorPath();
    const QList<SoTreeViewItem*> pathB = b->ancestorPath();
    const int common = std::min(pathA.size(), pathB.size());
    for (int i = 0; i < common; ++i) {
        if (pathA[i] != pathB[i])
            return pathA[i]->storedIndex() - pathB[i]->storedIndex();
    }
    return 0;
}

void SoTreeViewItem::updateReferenceIcon(bool show)
{
    if (m_marksReferences == show)
        return;
    m_marksReferences = show;
    emitDataChanged();
}

QVariant SoTreeViewItem::displayText(int column) const
{
    switch (column) {
    case TypeColumn:
        return RowTexts::typeName(m_node->getTypeId());
    case NameColumn: {
        const SbName part = partName();
        return RowTexts::name(part.isEmpty() ? m_node->getName() : part);
    }
    case ReferenceCountColumn:
        return QString::number(shownReferenceCount());
    default:
        return QVariant();
    }
}

int SoTreeViewItem::shownReferenceCount() const
{
    const bool countsAll = !m_hasKit || !style() || style()->countsAllReferences();
    return countsAll ? referenceCount() : referenceCount() - partRecord().innerPlaces();
}

const TreeStyle* SoTreeViewItem::style() const
{
    const auto* view = static_cast<const SoNodescopeTreeView*>(treeWidget());
    return view ? &view->style() : nullptr;
}

bool SoTreeViewItem::looksFromField(const TreeStyle& style) const
{
    return style.marksFieldRows() && (m_hasKit ? fromField() && !isPart() : m_inFieldSubtree);
}

QVariant SoTreeViewItem::data(int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return displayText(column);
    case Qt::DecorationRole:
        if (column == TypeColumn) {
            const QPixmap* pixmap = NscNodeInfo::pixmap(m_node);
            if (pixmap && !pixmap->isNull())
                return RowTexts::icon(*pixmap);
        } else if (column == ReferenceIconColumn) {
            if (m_marksReferences && isShared(*m_node) && icon(NameColumn).isNull())
                return BuiltInImages::icon(QStringLiteral("ArrowShort"));
        } else if (column == BookmarkColumn) {
            return m_isBookmarked ? QIcon(QStringLiteral(":/Nodescope_icons/Icons/bookmark.png")) : QIcon();
        }
        break;
    case Qt::FontRole:
        if (const TreeStyle* look = style())
            return look->font(column, looksFromField(*look));
        break;
    case Qt::ForegroundRole:
        if (const TreeStyle* look = style(); look && column >= 0 && column < ColumnCount)
            return m_isIgnored && column == TypeColumn ? QColor(Qt::darkGray)
                                                       : look->color(column, looksFromField(*look));
        break;
    case Qt::UserRole:
        if (column == TypeColumn)
            return storedIndex();
        break;
    default:
        break;
    }
    return QTreeWidgetItem::data(column, role);
}
