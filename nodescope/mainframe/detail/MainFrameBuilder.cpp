#include "MainFrameBuilder.h"

#include <nodescope/mainframe/RecentFilesMenu.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QMetaMethod>
#include <QToolBar>

namespace {

constexpr int Search_box_width = 150;

QMetaMethod slotOf(const QObject* object, const char* signature)
{
    return object->metaObject()->method(object->metaObject()->indexOfSlot(signature));
}

QMetaMethod signalOf(const QObject* object, const char* signature)
{
    return object->metaObject()->method(object->metaObject()->indexOfSignal(signature));
}

QString menuText(const char* text)
{
    return QCoreApplication::translate("Menu", text);
}

QIcon icon(const char* file)
{
    return file ? QIcon(QStringLiteral(":/Nodescope_icons/Icons/") + file) : QIcon();
}

} // namespace

void MainFrameBuilder::build()
{
    makeActions();
    makeSearchBox();
    makeRecentFiles();
    makeMenus();
    makeToolBars();
    for (const ActionRow& row : actionTable())
        connectAction(row);
}

void MainFrameBuilder::makeActions()
{
    for (const ActionRow& row : actionTable()) {
        auto* action = new QAction(icon(row.icon), menuText(row.text), &m_frame);
        if (row.shortcut)
            action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
        action->setCheckable(row.flags & ActionRow::Checkable);
        action->setChecked((row.flags & ActionRow::Checked) == ActionRow::Checked);
        m_frame.m_actions[std::size_t(row.id)] = action;
    }
}

void MainFrameBuilder::makeSearchBox()
{
    auto* box = new QComboBox(&m_frame);
    box->setEditable(true);
    box->setMinimumWidth(Search_box_width);
    box->setDuplicatesEnabled(false);
    box->setAccessibleName(SoNodescopeMainFrame::tr("Search"));
    box->setEnabled(managerHas("find()"));
    if (box->isEnabled())
        QObject::connect(box->lineEdit(), signalOf(box->lineEdit(), "returnPressed()"), m_frame.m_commandManager,
                         slotOf(m_frame.m_commandManager, "find()"));
    m_frame.m_searchBox = box;
}

void MainFrameBuilder::makeRecentFiles()
{
    auto* menu = new RecentFilesMenu(&m_frame);
    menu->setTitle(SoNodescopeMainFrame::tr("Recent &Files"));
    if (managerHas("openFileRecent()")) {
        for (QAction* action : menu->fileActions())
            QObject::connect(action, signalOf(action, "triggered()"), m_frame.m_commandManager,
                             slotOf(m_frame.m_commandManager, "openFileRecent()"));
    }
    m_frame.m_recentFiles = menu;
}

void MainFrameBuilder::makeMenus()
{
    QMenuBar& bar = *m_frame.menuBar();
    const auto& table = menuTable();
    for (std::size_t i = 0; i < table.size(); ++i) {
        QMenu* menu = bar.addMenu(menuText(table[i].title));
        fillMenu(*menu, table[i]);
        if (i == View_menu)
            m_frame.m_viewMenu = menu;
        else if (i == Help_menu)
            m_frame.m_helpMenuAction = menu->menuAction();
    }
}

void MainFrameBuilder::fillMenu(QMenu& menu, const MenuRow& row)
{
    for (const MenuItem& item : row.items) {
        switch (item.kind) {
        case MenuItem::Kind::Action:
            menu.addAction(m_frame.action(item.action));
            break;
        case MenuItem::Kind::Separator:
            menu.addSeparator();
            break;
        case MenuItem::Kind::Submenu:
            fillMenu(*menu.addMenu(menuText(item.submenu->title)), *item.submenu);
            break;
        case MenuItem::Kind::RecentFiles:
            menu.addMenu(m_frame.m_recentFiles);
            break;
        case MenuItem::Kind::SearchBox:
            Q_UNREACHABLE(); // stands in a tool bar only
        }
    }
}

void MainFrameBuilder::makeToolBars()
{
    for (const MenuRow& row : toolBarTable()) {
        if (row.startsLine)
            m_frame.addToolBarBreak();
        QToolBar* bar = m_frame.addToolBar(menuText(row.title));
        bar->setObjectName(row.title);
        fillToolBar(*bar, row);
    }
}

void MainFrameBuilder::fillToolBar(QToolBar& bar, const MenuRow& row)
{
    for (const MenuItem& item : row.items) {
        if (item.kind == MenuItem::Kind::Action)
            bar.addAction(m_frame.action(item.action));
        else if (item.kind == MenuItem::Kind::SearchBox)
            bar.addWidget(m_frame.m_searchBox);
        else
            bar.addSeparator();
    }
}

void MainFrameBuilder::connectAction(const ActionRow& row)
{
    QAction* action = m_frame.action(row.id);
    const bool isReachable = !row.managerSlot || managerHas(row.managerSlot);
    if (!isReachable || (row.flags & ActionRow::StartsDisabled))
        action->setEnabled(false);
    const char* trigger = (row.flags & ActionRow::Checkable) ? "toggled(bool)" : "triggered()";
    if (row.frameSlot)
        QObject::connect(action, signalOf(action, trigger), &m_frame, slotOf(&m_frame, row.frameSlot));
    else if (row.managerSlot && isReachable)
        QObject::connect(action, signalOf(action, trigger), m_frame.m_commandManager,
                         slotOf(m_frame.m_commandManager, row.managerSlot));
}

bool MainFrameBuilder::managerHas(const char* slot) const
{
    return m_frame.m_commandManager->metaObject()->indexOfSlot(slot) >= 0;
}
