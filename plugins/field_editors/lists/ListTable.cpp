#include "ListTable.h"

#include "CellDelegate.h"
#include "ListColumns.h"
#include "ListModel.h"

#include <plugins/field_editors/edit/FieldBinding.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int Row_padding = 6;
/** So many columns share the width of the view; more are as wide as a number and scroll. */
constexpr int Most_stretched_columns = 4;
constexpr int Icon_size = 18;

} // namespace

ListTable::ListTable(FieldBinding& binding, const ListColumns& columns, QWidget* parent)
    : QWidget(parent), m_binding(binding), m_columns(columns), m_edits(binding, columns),
      m_model(new ListModel(binding, columns, this)), m_view(new QTableView), m_bar(new QToolBar)
{
    setUpView();
    setUpActions();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    rows->addWidget(m_bar);
    rows->addWidget(m_view);
    connect(m_model, &ListModel::refused, this, &ListTable::problemChanged);
    connect(&binding, &FieldBinding::fieldChanged, this, &ListTable::updateActions);
    connect(&binding, &FieldBinding::valueChanged, this, &ListTable::updateActions);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { emit currentRowChanged(current.row()); });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListTable::updateActions);
    updateActions();
}

ListTable::~ListTable() = default;

void ListTable::setUpView()
{
    m_view->setModel(m_model);
    m_view->setItemDelegate(new CellDelegate(m_view));
    m_view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setWordWrap(false);
    m_view->installEventFilter(this);
    // Rows of one height are laid out without a look at each of them.
    QHeaderView& rows = *m_view->verticalHeader();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(fontMetrics().height() + Row_padding);
    rows.setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QHeaderView& columns = *m_view->horizontalHeader();
    const bool isStretched = m_columns.headers().size() <= Most_stretched_columns;
    columns.setSectionResizeMode(isStretched ? QHeaderView::Stretch : QHeaderView::Interactive);
    columns.setMinimumSectionSize(fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    columns.setHighlightSections(false);
}

void ListTable::setUpActions()
{
    struct Row {
        const char* icon;
        const char* text;
        const char* tip;
        QKeySequence keys;
        void (ListTable::*slot)();
    };
    const Row rows[] = {
        {"rowinsert", QT_TR_NOOP("Insert"), QT_TR_NOOP("Insert a value in front of the current one (Insert)"),
         Qt::Key_Insert, &ListTable::insertRow},
        {"rowremove", QT_TR_NOOP("Remove"), QT_TR_NOOP("Remove the selected values (Delete)"), QKeySequence::Delete,
         &ListTable::removeRows},
        {"fill", QT_TR_NOOP("Fill"), QT_TR_NOOP("Fill the selected cells with the topmost one (Ctrl+D)"),
         QKeySequence(QStringLiteral("Ctrl+D")), &ListTable::fill},
        {"copy", QT_TR_NOOP("Copy"), QT_TR_NOOP("Copy the selected cells (Ctrl+C)"), QKeySequence::Copy,
         &ListTable::copy},
        {"paste", QT_TR_NOOP("Paste"), QT_TR_NOOP("Paste cells from a spreadsheet (Ctrl+V)"), QKeySequence::Paste,
         &ListTable::paste},
    };
    m_bar->setIconSize(QSize(Icon_size, Icon_size));
    for (const Row& row : rows) {
        auto* const action =
            new QAction(QIcon(QStringLiteral(":/Field_editor_icons/%1.png").arg(row.icon)), tr(row.text), this);
        action->setObjectName(row.icon);
        action->setToolTip(tr(row.tip));
        action->setShortcut(row.keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, row.slot);
        m_view->addAction(action);
        m_bar->addAction(action);
        if (row.slot == &ListTable::copy)
            m_copy = action;
        else
            m_actions.push_back(action);
    }
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ListTable::updateActions()
{
    const bool isEditable = m_binding.isEditable();
    for (QAction* action : m_actions)
        action->setEnabled(isEditable);
    m_copy->setEnabled(m_view->selectionModel()->hasSelection());
}

int ListTable::currentRow() const
{
    return m_view->currentIndex().row();
}

bool ListTable::eventFilter(QObject* watched, QEvent* event)
{
    // Keys of the table are not left to the window, where they would delete or copy nodes.
    if (watched == m_view && event->type() == QEvent::ShortcutOverride && actionOf(static_cast<QKeyEvent&>(*event)))
        event->accept();
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        if (QAction* const action = actionOf(static_cast<QKeyEvent&>(*event))) {
            action->trigger();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

QAction* ListTable::actionOf(const QKeyEvent& event) const
{
    const QKeySequence keys(int(event.modifiers() & ~Qt::KeypadModifier) | event.key());
    const QList<QAction*> actions = m_view->actions();
    const auto found =
        std::find_if(actions.begin(), actions.end(), [&](const QAction* a) { return a->shortcut() == keys; });
    return found == actions.end() ? nullptr : *found;
}

std::vector<CellRange> ListTable::selectedRanges() const
{
    // The list may be shorter than the table for the rest of an event turn.
    const int last = m_model->list() ? m_model->list()->getNum() - 1 : -1;
    std::vector<CellRange> ranges;
    for (const QItemSelectionRange& range : m_view->selectionModel()->selection()) {
        if (range.top() <= last)
            ranges.push_back({{range.top(), std::min(range.bottom(), last)}, range.left(), range.right()});
    }
    return ranges;
}

CellRange ListTable::selectedSpan() const
{
    const std::vector<CellRange> ranges = selectedRanges();
    if (ranges.empty())
        return {{0, -1}, 0, -1};
    CellRange span = ranges.front();
    for (const CellRange& range : ranges) {
        span.rows = {std::min(span.rows.first, range.rows.first), std::max(span.rows.last, range.rows.last)};
        span.firstColumn = std::min(span.firstColumn, range.firstColumn);
        span.lastColumn = std::max(span.lastColumn, range.lastColumn);
    }
    return span;
}

void ListTable::insertRow()
{
    const int num = m_model->list()->getNum();
    m_edits.insertRows(currentRow() < 0 ? num : std::min(currentRow(), num), 1);
}

void ListTable::removeRows()
{
    std::vector<RowRange> rows;
    for (const CellRange& range : selectedRanges())
        rows.push_back(range.rows);
    m_edits.removeRows(std::move(rows));
}

void ListTable::fill()
{
    if (const CellRange span = selectedSpan(); span.rows.count() > 1)
        m_edits.fill(span);
}

void ListTable::copy()
{
    QGuiApplication::clipboard()->setText(m_edits.copy(selectedSpan()));
}

void ListTable::paste()
{
    const CellRange span = selectedSpan();
    const int row = span.rows.count() > 0 ? span.rows.first : m_model->list()->getNum();
    emit problemChanged(m_edits.paste(row, std::max(span.firstColumn, 0), QGuiApplication::clipboard()->text()));
}
