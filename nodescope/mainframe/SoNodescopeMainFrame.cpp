#include "SoNodescopeMainFrame.h"
#include "RecentFilesMenu.h"
#include "SceneFileHandler.h"
#include "detail/InlineFiles.h"
#include "detail/MainFrameBuilder.h"
#include "detail/WindowGeometry.h"

#include <nodescope/preferences/SoNodescopeStateManager.h>

#include <QAction>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

namespace {

constexpr int All_categories = 0x3FFF;
constexpr QSize Size_when_not_maximised(1280, 800);

} // namespace

SoNodescopeMainFrame::SoNodescopeMainFrame(QWidget* parent) : QMainWindow(parent) {}

SoNodescopeMainFrame::~SoNodescopeMainFrame()
{
    InlineFiles::remove();
}

void SoNodescopeMainFrame::setUp(QObject* commandManager, Hosting hosting)
{
    m_commandManager = commandManager;
    m_hosting = hosting;
    InlineFiles::install();
    setWindowTitle(tr("Nodescope"));
    setWindowIcon(QIcon(QStringLiteral(":/Nodescope_icons/Icons/NodescopeIcon.png")));
    setAcceptDrops(true);
    resize(Size_when_not_maximised);
    MainFrameBuilder(*this).build();
    updateSceneFileActions();
    SoNodescopeStateManager::init();
}

void SoNodescopeMainFrame::setSceneFiles(SceneFileHandler* sceneFiles)
{
    m_sceneFiles = sceneFiles;
    updateSceneFileActions();
}

void SoNodescopeMainFrame::updateSceneFileActions()
{
    const bool isAttached = m_hosting == Hosting::Attached;
    for (const ActionRow& row : actionTable()) {
        if (row.flags & ActionRow::NeedsSceneFiles)
            action(row.id)->setEnabled(m_sceneFiles && !(isAttached && (row.flags & ActionRow::StandaloneOnly)));
    }
    m_recentFiles->setEnabled(m_sceneFiles && !isAttached);
}

int SoNodescopeMainFrame::categoryFilter() const
{
    if (!action(ActionId::ToggleFilters)->isChecked())
        return All_categories;
    int mask = 0;
    for (int bit = 0; 1 << bit <= All_categories; ++bit) {
        if (action(actionAfter(ActionId::FilterAppearance, bit))->isChecked())
            mask |= 1 << bit;
    }
    return mask;
}

void SoNodescopeMainFrame::applyCategoryFilter()
{
    QMetaObject::invokeMethod(m_commandManager, "setFilter", Qt::DirectConnection, Q_ARG(int, categoryFilter()));
}

void SoNodescopeMainFrame::on_toggleFilterAction_toggled(bool)
{
    applyCategoryFilter();
}

void SoNodescopeMainFrame::on_filterChanged()
{
    applyCategoryFilter();
}

void SoNodescopeMainFrame::on_customFilterAction_toggled(bool)
{
    applyCategoryFilter();
}

void SoNodescopeMainFrame::on_cutAction_activated()
{
    QMetaObject::invokeMethod(m_commandManager, "cut", Qt::DirectConnection);
}

void SoNodescopeMainFrame::on_copyAction_activated()
{
    QMetaObject::invokeMethod(m_commandManager, "copy", Qt::DirectConnection);
}

void SoNodescopeMainFrame::on_pasteAction_activated()
{
    QMetaObject::invokeMethod(m_commandManager, "paste", Qt::DirectConnection);
}

void SoNodescopeMainFrame::on_deleteAction_activated()
{
    // What is deleted depends on the panel in focus, which connects its own handler to the action.
}

void SoNodescopeMainFrame::openFile(const QString& file)
{
    if (m_sceneFiles)
        m_sceneFiles->openFile(file);
}

void SoNodescopeMainFrame::restoreSettings()
{
    WindowGeometry::restore(*this);
    m_recentFiles->load();
}

void SoNodescopeMainFrame::restoreLayout()
{
    WindowGeometry::restoreLayout(*this);
}

void SoNodescopeMainFrame::saveSettings() const
{
    WindowGeometry::save(*this);
    m_recentFiles->save();
}

void SoNodescopeMainFrame::closeEvent(QCloseEvent* event)
{
    saveSettings();
    emit quitRequested();
    event->accept();
}

void SoNodescopeMainFrame::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(event->mimeData()->hasUrls());
}

void SoNodescopeMainFrame::dropEvent(QDropEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.isEmpty())
        return;
    event->acceptProposedAction();
    openFile(urls.first().toLocalFile());
}
