#include "SoTreeViewState.h"

#include <extension/NscExtension.h>
#include <extension/NscShell.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoWWWInline.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QPointer>

#include <iterator>

/** An entry that stands in the context menu only. */
struct ContextMenuEntry {
    const char* text;
    const char* icon; ///< file name in the icon folder; null: none
    const char* managerSlot;
};

namespace {

using References = SoNodescopeTreeView::References;

constexpr const char* Delete_slot = "treeDeleteNode()";

constexpr ContextMenuEntry Row_entries[] = {
    {QT_TRANSLATE_NOOP("SoTreeViewState", "Expand All"), nullptr, "expandAll()"},
    {QT_TRANSLATE_NOOP("SoTreeViewState", "Add to Node Overview"), nullptr, "setNodeOverview()"},
    {QT_TRANSLATE_NOOP("SoTreeViewState", "Add Node"), nullptr, "treeAddNode()"},
    {QT_TRANSLATE_NOOP("SoTreeViewState", "&Save scene graph"), "filesave.png", "saveSubSceneGraph()"},
    {QT_TRANSLATE_NOOP("SoTreeViewState", "&Delete"), "editdelete.png", Delete_slot},
};

// The main window's actions of these names work on the system's clipboard; these keep a node inside the program.
constexpr ContextMenuEntry Clipboard_entries[] = {
    {QT_TRANSLATE_NOOP("SoTreeViewState", "Cu&t"), "editcut.png", "cutNode()"},
    {QT_TRANSLATE_NOOP("SoTreeViewState", "&Copy"), "editcopy.png", "copyNode()"},
};

constexpr ActionId Actions_on_rows[] = {ActionId::ShowAllReferences, ActionId::HideAllReferences,
                                        ActionId::NextReference,     ActionId::PreviousReference,
                                        ActionId::SetIgnoredEnable,  ActionId::Delete};

QIcon icon(const char* file)
{
    return file ? QIcon(QStringLiteral(":/Nodescope_icons/Icons/") + file) : QIcon();
}

bool hasContentsOfAFile(const SoNode& node)
{
    return node.isOfType(SoFile::getClassTypeId()) || node.isOfType(SoWWWInline::getClassTypeId());
}

} // namespace

SoTreeViewState::SoTreeViewState(SoNodescopeTreeView& treeView, SoNodescopeMainFrame& frame, QObject& commandManager)
    : SoNodescopeState(&treeView), m_treeView(treeView), m_frame(frame), m_commandManager(commandManager)
{
}

void SoTreeViewState::activate()
{
    connect(&m_treeView, &QTreeWidget::currentItemChanged, this, &SoTreeViewState::updateItemTreeViewAction);
    connect(&m_treeView, &SoNodescopeTreeView::referencesChanged, this, &SoTreeViewState::updateCurrent);
    connectToManager(action(ActionId::Delete), Delete_slot);
    for (const ActionId id : Actions_on_rows)
        enable(id, false);
    updateCurrent();
}

void SoTreeViewState::deactivate()
{
    disconnect(&m_treeView, &QTreeWidget::currentItemChanged, this, nullptr);
    disconnect(&m_treeView, &SoNodescopeTreeView::referencesChanged, this, nullptr);
    action(ActionId::Delete).disconnect(&m_commandManager);
}

void SoTreeViewState::updateCurrent()
{
    updateItemTreeViewAction(m_treeView.currentItem());
}

void SoTreeViewState::updateItemTreeViewAction(QTreeWidgetItem* item, QTreeWidgetItem*)
{
    if (!item)
        return;
    const auto& row = static_cast<const SoTreeViewItem&>(*item);
    const References references = m_treeView.references(row);
    enable(ActionId::ShowAllReferences, references == References::Hidden);
    for (const ActionId id : {ActionId::HideAllReferences, ActionId::NextReference, ActionId::PreviousReference})
        enable(id, references == References::Shown);
    enable(ActionId::SetIgnoredEnable, row.acceptsIgnoring() && !hasContentsOfAFile(*row.node()));
    action(ActionId::Delete).setEnabled(managerHas(Delete_slot));
}

void SoTreeViewState::contextMenu(QContextMenuEvent* event)
{
    QTreeWidgetItem* item = m_treeView.itemAt(event->pos());
    if (!item || item->isDisabled())
        return;
    m_treeView.setCurrentItem(item); // the entries work on the current row
    const QPointer<QMenu> menu = new QMenu(&m_frame);
    fillMenu(*menu, static_cast<const SoTreeViewItem&>(*item));
    if (!menu->isEmpty())
        menu->exec(event->globalPos());
    delete menu; // unless the inspection was stopped meanwhile, and the menu went with the window
}

void SoTreeViewState::fillMenu(QMenu& menu, const SoTreeViewItem& row)
{
    if (row.isIgnored()) {
        if (row.acceptsIgnoring())
            menu.addAction(&action(ActionId::SetIgnoredEnable));
        return;
    }
    addEntries(menu, std::begin(Row_entries), std::end(Row_entries));
    menu.addSeparator();
    addEntries(menu, std::begin(Clipboard_entries), std::end(Clipboard_entries));
    menu.addAction(&action(ActionId::InsertClipboard));
    if (row.acceptsIgnoring()) {
        menu.addSeparator();
        menu.addAction(&action(ActionId::SetIgnoredEnable));
    }
    const References references = m_treeView.references(row);
    if (references != References::None) {
        menu.addSeparator();
        menu.addAction(&action(ActionId::ShowAllReferences));
    }
    if (references == References::Shown)
        menu.addAction(&action(ActionId::HideAllReferences));

    menu.addSeparator();
    const NscShell* const shell = NscShell::getInstance();
    for (NscExtension* extension :
         shell ? shell->getExtensions(row.node()->getTypeId()) : std::vector<NscExtension*>()) {
        if (QMenu* const offered = extension->getNodeMenu())
            menu.addMenu(offered);
    }
}

void SoTreeViewState::addEntries(QMenu& menu, const ContextMenuEntry* begin, const ContextMenuEntry* end)
{
    for (const ContextMenuEntry* entry = begin; entry != end; ++entry) {
        QAction* const added = menu.addAction(icon(entry->icon), tr(entry->text));
        added->setEnabled(managerHas(entry->managerSlot));
        connectToManager(*added, entry->managerSlot);
    }
}

QAction& SoTreeViewState::action(ActionId id) const
{
    return *m_frame.action(id);
}

void SoTreeViewState::enable(ActionId id, bool on)
{
    const char* const slot = actionTable()[std::size_t(id)].managerSlot;
    action(id).setEnabled(on && (!slot || managerHas(slot)));
}

bool SoTreeViewState::managerHas(const char* slot) const
{
    return m_commandManager.metaObject()->indexOfSlot(slot) >= 0;
}

void SoTreeViewState::connectToManager(QAction& action, const char* slot)
{
    const QMetaObject& manager = *m_commandManager.metaObject();
    if (managerHas(slot))
        connect(&action, QMetaMethod::fromSignal(&QAction::triggered), &m_commandManager,
                manager.method(manager.indexOfSlot(slot)));
}
