#include "MessagePanel.h"
#include "detail/ToolkitErrors.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeView>
#include <algorithm>

namespace {

/** Of the columns before the last, in characters. */
constexpr int Column_characters[] = {11, 10, 30};

} // namespace

MessagePanel::MessagePanel(QWidget* parent)
    : QWidget(parent), m_errors(std::make_unique<ToolkitErrors>(m_log)), m_view(new QTreeView(this)),
      m_copyButton(new QPushButton(tr("Copy"), this)), m_clearButton(new QPushButton(tr("Clear"), this))
{
    m_view->setModel(&m_log);
    m_view->setAccessibleName(tr("Messages"));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setTextElideMode(Qt::ElideMiddle); // a place in a file ends with its line
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->installEventFilter(this);
    for (int column = 0; column < MessageLog::TextColumn; ++column)
        m_view->header()->resizeSection(column, Column_characters[column] * fontMetrics().averageCharWidth());

    auto* const buttons = new QVBoxLayout;
    buttons->addWidget(m_copyButton);
    buttons->addWidget(m_clearButton);
    buttons->addStretch();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    layout->addLayout(buttons);

    connect(m_copyButton, &QPushButton::clicked, this, &MessagePanel::copy);
    connect(m_clearButton, &QPushButton::clicked, &m_log, &MessageLog::clear);
    connect(&m_log, &MessageLog::modelReset, this, &MessagePanel::updateButtons);
    connect(&m_log, &MessageLog::rowsAboutToBeInserted, this, [this] {
        const QScrollBar& bar = *m_view->verticalScrollBar();
        m_isAtEnd = bar.value() == bar.maximum();
    });
    connect(&m_log, &MessageLog::rowsInserted, this, &MessagePanel::followEnd);
    updateButtons();
}

MessagePanel::~MessagePanel() = default;

void MessagePanel::updateButtons()
{
    m_copyButton->setEnabled(m_log.rowCount() > 0);
    m_clearButton->setEnabled(m_log.rowCount() > 0);
}

void MessagePanel::followEnd()
{
    updateButtons();
    if (m_isAtEnd)
        m_view->scrollToBottom();
}

void MessagePanel::copy()
{
    std::vector<int> rows;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    if (rows.empty()) {
        for (int row = 0; row < m_log.rowCount(); ++row)
            rows.push_back(row);
    }
    QString text;
    for (const int row : rows)
        text += m_log.lineText(row) + '\n';
    QGuiApplication::clipboard()->setText(text);
}

bool MessagePanel::eventFilter(QObject*, QEvent* event)
{
    // The window has the same key for copying nodes.
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!isKey || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return false;
    if (event->type() == QEvent::KeyPress)
        copy();
    event->accept();
    return true;
}
