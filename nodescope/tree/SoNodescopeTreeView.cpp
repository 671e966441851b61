#include "SoNodescopeTreeView.h"
#include "NodeSearch.h"
#include "RowDelegate.h"
#include "SoGraphTopologyManager.h"
#include "SoTreeViewItem.h"
#include "detail/Bookmarks.h"
#include "detail/CategoryFilter.h"
#include "detail/ClassReference.h"
#include "detail/ReferenceHiding.h"
#include "detail/RowDrag.h"
#include "detail/RowFactory.h"
#include "detail/RowHighlighter.h"
#include "detail/RowSearch.h"
#include "detail/RowTexts.h"
#include "detail/TreeStyleSheet.h"

#include <vexel/base/SoPath.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/nodes/SoSelection.h>

#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace {

const bool Highlights_automatically = SoPreferences::getBool("VXL_NODESCOPE_AUTO_HIGHLIGHT", true);

constexpr int Update_delay = 100; // milliseconds

SoTreeViewItem* asRow(QTreeWidgetItem* item)
{
    return static_cast<SoTreeViewItem*>(item);
}

} // namespace

SoNodescopeTreeView::SoNodescopeTreeView(QWidget* parent)
    : QTreeWidget(parent), m_registry(this), m_filter(std::make_unique<CategoryFilter>(this)),
      m_factory(std::make_unique<RowFactory>(*this, *m_filter)),
      m_references(std::make_unique<ReferenceHiding>(m_registry)), m_highlighter(std::make_unique<RowHighlighter>()),
      m_topologyManager(std::make_unique<SoGraphTopologyManager>(this)), m_drag(std::make_unique<RowDrag>(*this))
{
    setColumnCount(SoTreeViewItem::ColumnCount);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(20);
    // Columns fit what is seen; measuring a thousand rows beyond that would hold up each opening of a row.
    header()->setResizeContentsPrecision(0);
    setHeaderLabels({tr("Type"), tr("Name"), tr("Ref. Count"), QString(), QString()});
    setColumnWidth(SoTreeViewItem::ReferenceIconColumn, 44);
    setColumnWidth(SoTreeViewItem::TypeColumn, 200);
    setColumnWidth(SoTreeViewItem::NameColumn, 120);
    setColumnWidth(SoTreeViewItem::BookmarkColumn, 24);
    setUniformRowHeights(true);
    setIconSize(QSize(20, 20));
    setStyleSheet(treeStyleSheet());
    setItemDelegate(new RowDelegate(this));
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAccessibleName(tr("Scene graph"));

    connect(this, &QTreeWidget::currentItemChanged, this, &SoNodescopeTreeView::selectChange);
    connect(this, &QTreeWidget::itemClicked, this, &SoNodescopeTreeView::onItemClicked);
    connect(this, &QTreeWidget::customContextMenuRequested, this, &SoNodescopeTreeView::onCustomContextMenu);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* item) { makePendingChildren(asRow(item)); });
    connect(this, &QTreeWidget::itemExpanded, this, &SoNodescopeTreeView::resizeAllColumns);
    connect(this, &QTreeWidget::itemCollapsed, this, &SoNodescopeTreeView::resizeAllColumns);
    initPreferences();
}

SoNodescopeTreeView::~SoNodescopeTreeView()
{
    setSceneGraph(nullptr);
    m_registry.clear();
}

void SoNodescopeTreeView::setSceneGraph(SoSelection* root)
{
    const auto picked = [](void* view, SoSelection* selection) {
        static_cast<SoNodescopeTreeView*>(view)->selectionPicked(*selection);
    };
    if (m_root)
        m_root->removeFinishCallback(picked, this);
    m_root = root;
    m_topologyManager->setRoot(root);
    m_highlighter->setSelection(root);
    if (m_root)
        m_root->addFinishCallback(picked, this);
}

void SoNodescopeTreeView::selectionPicked(SoSelection& selection)
{
    if (selection.getNumSelected() > 0)
        selectPickedPath(*selection.getPath(0));
    else
        clearSelection();
}

SoTreeViewItem* SoNodescopeTreeView::currentRow() const
{
    return asRow(currentItem());
}

void SoNodescopeTreeView::reset(SoNode* node)
{
    m_registry.clear();
    const bool notifies = m_notifiesSelection;
    m_notifiesSelection = false;
    clear();
    m_factory->restart();
    SoTreeViewItem* top = createItem(node, nullptr, nullptr, -1);
    if (top) {
        makePendingChildren(top);
        setCurrentItem(top);
        top->setExpanded(true);
    }
    m_notifiesSelection = notifies;
    notifySelection(top);
    resizeAllColumns();
}

SoTreeViewItem* SoNodescopeTreeView::createItem(SoNode* node, SoTreeViewItem* parentRow, SoField* sourceField,
                                                int position)
{
    return node ? m_factory->make(*node, parentRow, sourceField, position) : nullptr;
}

void SoNodescopeTreeView::buildChildren(SoTreeViewItem* row)
{
    m_factory->makeChildren(*row);
}

void SoNodescopeTreeView::makePendingChildren(SoTreeViewItem* row)
{
    if (row->hasPendingChildren())
        m_factory->makeChildren(*row);
}

bool SoNodescopeTreeView::isBuiltOnDemand() const
{
    return m_factory->isOnDemand();
}

SoTreeViewItem* SoNodescopeTreeView::rowForPath(const SoPath& path, int firstNode)
{
    return m_highlighter->rowAt(*this, path, firstNode);
}

SoTreeViewItem* SoNodescopeTreeView::find(int column, const QString& text, int flags)
{
    const KeyMatcher matcher(column, text, flags);
    return RowSearch(*this, matcher, flags & NodeSearch::Backward).find();
}

void SoNodescopeTreeView::insertNode(const QString& typeName)
{
    emit insertRequested(typeName);
}

void SoNodescopeTreeView::revealRow(SoTreeViewItem* row)
{
    for (SoTreeViewItem* above = row->parentRow(); above; above = above->parentRow())
        above->setExpanded(true);
    setCurrentItem(row);
    scrollToItem(row);
}

void SoNodescopeTreeView::setHighlightingEnabled(bool on)
{
    m_highlighter->setEnabled(on);
}

bool SoNodescopeTreeView::mayHighlight(const SoTreeViewItem& row) const
{
    return Highlights_automatically && row.isActive() && (!row.inFieldSubtree() || row.isPart());
}

void SoNodescopeTreeView::highlightRow(SoTreeViewItem* row)
{
    m_highlighter->highlight(*row);
    viewport()->update();
}

void SoNodescopeTreeView::reselectRow(SoTreeViewItem* row)
{
    if (!row || !row->isActive())
        return;
    const bool isCurrent = row == currentItem();
    revealRow(row);
    if (isCurrent)
        selectChange(row, row); // which making it current again does not tell
}

void SoNodescopeTreeView::showRow(SoTreeViewItem* row)
{
    const bool notifies = m_notifiesSelection;
    m_notifiesSelection = false;
    revealRow(row);
    m_notifiesSelection = notifies;
    if (mayHighlight(*row))
        highlightRow(row);
}

void SoNodescopeTreeView::makeCurrentSilently(SoTreeViewItem* row)
{
    const bool notifies = m_notifiesSelection;
    m_notifiesSelection = false;
    setCurrentItem(row);
    m_notifiesSelection = notifies;
}

void SoNodescopeTreeView::notifySelection(SoTreeViewItem* row)
{
    if (m_notifiesSelection)
        emit rowSelected(row, m_shiftClicked);
}

void SoNodescopeTreeView::selectChange(QTreeWidgetItem* current, QTreeWidgetItem*)
{
    if (!m_notifiesSelection)
        return;
    SoTreeViewItem* row = asRow(current);
    if (row && mayHighlight(*row))
        highlightRow(row);
    notifySelection(row);
}

void SoNodescopeTreeView::selectPickedPath(const SoPath& path)
{
    int first = 0;
    while (first < path.getFullLength() && !path.getNode(first)->isOfType(SoSelection::getClassTypeId()))
        ++first;
    SoTreeViewItem* row = rowForPath(path, first < path.getFullLength() ? first + 1 : 0);
    if (row)
        revealRow(row);
    else
        clearSelection();
}

void SoNodescopeTreeView::onItemClicked(QTreeWidgetItem* item, int)
{
    // A click on the current row marks it again, after something else was marked in the 3D view.
    SoTreeViewItem* row = asRow(item);
    if (row && row == currentRow() && mayHighlight(*row))
        highlightRow(row);
}

void SoNodescopeTreeView::onCustomContextMenu(const QPoint& place)
{
    QContextMenuEvent event(QContextMenuEvent::Other, place, viewport()->mapToGlobal(place));
    emit contextMenuRequested(&event);
}

void SoNodescopeTreeView::resizeAllColumns()
{
    // Many rows may open in one turn of the event loop; the columns are measured once after them.
    if (m_resizePending)
        return;
    m_resizePending = true;
    QTimer::singleShot(0, this, &SoNodescopeTreeView::resizeColumnsNow);
}

void SoNodescopeTreeView::resizeColumnsNow()
{
    m_resizePending = false;
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
}

void SoNodescopeTreeView::expandBelow(QTreeWidgetItem* item)
{
    if (!item) {
        expandAll();
        return;
    }
    // With a layout to come, opening a row is only a note; without one, each row would lay out all those below.
    scheduleDelayedItemsLayout();
    m_factory->expandBelow(*asRow(item));
}

void SoNodescopeTreeView::reapplyFilter()
{
    m_filter->apply();
}

void SoNodescopeTreeView::setFilter(int filter)
{
    m_filter->setMask(filter);
}

int SoNodescopeTreeView::getFilter() const
{
    return m_filter->mask();
}

void SoNodescopeTreeView::showAllReferences(SoTreeViewItem* row)
{
    m_references->show(row);
    refreshSelection();
}

void SoNodescopeTreeView::removeAllReferences(SoTreeViewItem* row)
{
    m_references->hide(row);
    refreshSelection();
}

void SoNodescopeTreeView::refreshSelection()
{
    QTreeWidgetItem* current = currentItem();
    clearSelection();
    setCurrentItem(current);
    viewport()->update();
    emit referencesChanged();
}

SoNodescopeTreeView::References SoNodescopeTreeView::references(const SoTreeViewItem& row)
{
    const QList<SoTreeViewItem*> rows = m_references->references(*row.node());
    if (rows.isEmpty())
        return References::None;
    const bool allShown = std::all_of(rows.begin(), rows.end(), [](const SoTreeViewItem* r) { return r->isActive(); });
    return allShown ? References::Shown : References::Hidden;
}

SoTreeViewItem* SoNodescopeTreeView::nextReference()
{
    return stepReference(true);
}

SoTreeViewItem* SoNodescopeTreeView::previousReference()
{
    return stepReference(false);
}

SoTreeViewItem* SoNodescopeTreeView::stepReference(bool forward)
{
    SoTreeViewItem* row = currentRow() ? m_references->step(currentRow(), forward) : nullptr;
    if (row)
        revealRow(row);
    return row;
}

void SoNodescopeTreeView::toggleBookmark()
{
    if (SoTreeViewItem* row = currentRow())
        row->setBookmarked(!row->isBookmarked());
}

SoTreeViewItem* SoNodescopeTreeView::nextBookmark()
{
    return stepBookmark(true);
}

SoTreeViewItem* SoNodescopeTreeView::previousBookmark()
{
    return stepBookmark(false);
}

SoTreeViewItem* SoNodescopeTreeView::stepBookmark(bool forward)
{
    SoTreeViewItem* row = Bookmarks(this).step(forward);
    if (row)
        revealRow(row);
    return row;
}

void SoNodescopeTreeView::clearBookmark()
{
    Bookmarks(this).clear();
}

void SoNodescopeTreeView::initPreferences()
{
    m_style.load();
    m_topologyManager->setUpdateDelay(Update_delay);
    setColumnHidden(SoTreeViewItem::NameColumn, !m_style.showsNames());
    setColumnHidden(SoTreeViewItem::ReferenceCountColumn, !m_style.showsReferenceCounts());
    viewport()->update();
}

void SoNodescopeTreeView::setPreferences()
{
    m_style.save();
    initPreferences();
}

void SoNodescopeTreeView::focusInEvent(QFocusEvent* event)
{
    QTreeWidget::focusInEvent(event);
    emit focusReceived();
}

void SoNodescopeTreeView::focusOutEvent(QFocusEvent* event)
{
    m_drag->setSpaceHeld(false); // its release goes elsewhere
    QTreeWidget::focusOutEvent(event);
}

void SoNodescopeTreeView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
        m_drag->setSpaceHeld(true);
        break;
    case Qt::Key_Asterisk:
        if (currentItem())
            expandBelow(currentItem());
        break;
    default:
        QTreeWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void SoNodescopeTreeView::keyReleaseEvent(QKeyEvent* event)
{
    SoTreeViewItem* const row = currentRow();
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        m_drag->setSpaceHeld(false);
    else if (event->key() == Qt::Key_Delete && row)
        emit deleteRequested(row);
    else if (event->key() == Qt::Key_F1 && row)
        QDesktopServices::openUrl(ClassReference::page(RowTexts::typeName(row->node()->getTypeId())));
    event->accept();
}

void SoNodescopeTreeView::mousePressEvent(QMouseEvent* event)
{
    m_shiftClicked = itemAt(event->pos()) && event->modifiers() == Qt::ShiftModifier;
    QTreeWidget::mousePressEvent(event);
    m_shiftClicked = false;
    m_drag->press(event->pos());
}

void SoNodescopeTreeView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        m_drag->move(event->pos()); // rows that the mouse is drawn over are not selected
    else
        QTreeWidget::mouseMoveEvent(event);
}

void SoNodescopeTreeView::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(!event->mimeData()->hasUrls()); // files are for the window
}

void SoNodescopeTreeView::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeWidget::dragMoveEvent(event); // which scrolls near the edges
    if (m_drag->draggedRow(*event->mimeData()))
        m_drag->hover(event->pos());
    event->accept();
}

void SoNodescopeTreeView::dragLeaveEvent(QDragLeaveEvent* event)
{
    m_drag->leave();
    QTreeWidget::dragLeaveEvent(event);
}

void SoNodescopeTreeView::dropEvent(QDropEvent* event)
{
    event->accept();
    m_drag->drop(event->pos(), *event->mimeData());
}

void SoNodescopeTreeView::paintEvent(QPaintEvent* event)
{
    QTreeWidget::paintEvent(event);
    QPainter painter(viewport());
    m_drag->paintIndicator(painter);
}
