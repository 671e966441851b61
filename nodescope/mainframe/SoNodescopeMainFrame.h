#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/mainframe/ActionTable.h>

#include <QMainWindow>
#include <array>

class QComboBox;
class QMenu;
class RecentFilesMenu;
class SceneFileHandler;

/**
 * The inspector's one window: actions, menus, tool bars, docks. It decides nothing itself: actions reach the command
 * manager, whose slots it finds by the names in the action table. An action whose slot the manager does not have stays
 * disabled.
 */
class NODESCOPE_API SoNodescopeMainFrame : public QMainWindow {
    Q_OBJECT
public:
    enum class Hosting { Standalone, Attached };

    explicit SoNodescopeMainFrame(QWidget* parent = nullptr);
    ~SoNodescopeMainFrame() override;

    /** Builds actions, menus and tool bars and connects them to the command manager's slots. To be called once. */
    void setUp(QObject* commandManager, Hosting hosting);
    /** What opens and saves scenes; null: none, then the file actions are disabled. Not owned. */
    void setSceneFiles(SceneFileHandler* sceneFiles);
    SceneFileHandler* sceneFiles() const { return m_sceneFiles; }

    QAction* action(ActionId id) const { return m_actions[std::size_t(id)]; }
    /** The menu of docks and extensions. */
    QMenu* viewMenu() const { return m_viewMenu; }
    /** The help menu's place in the menu bar; further menus stand in front of it. */
    QAction* helpMenuAction() const { return m_helpMenuAction; }
    RecentFilesMenu* recentFiles() const { return m_recentFiles; }
    QComboBox* searchBox() const { return m_searchBox; }

    /** The categories to show, as a bit set: those of the checked filter actions, or all while filters are switched
     * off. */
    int categoryFilter() const;

    /** Opens a scene file as if it had been dropped onto the window. */
    void openFile(const QString& file);

    /** Reads window geometry and recent files from the preference store. */
    void restoreSettings();
    /** Puts docks and tool bars where the user left them; to be called when all are there that will be. */
    void restoreLayout();
    void saveSettings() const;

signals:
    /** The window is being closed: save what is to be kept. The inspector stops after this. */
    void quitRequested();
    /** What is shown shall be written into a picture file, or printed. */
    ///@{
    void exportRequested();
    void printRequested();
    ///@}

public slots:
    void on_toggleFilterAction_toggled(bool isOn);
    void on_filterChanged();
    void on_customFilterAction_toggled(bool isOn);
    void on_cutAction_activated();
    void on_copyAction_activated();
    void on_pasteAction_activated();
    void on_deleteAction_activated();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    friend class MainFrameBuilder;

    void applyCategoryFilter();
    void updateSceneFileActions();

    QObject* m_commandManager = nullptr;
    Hosting m_hosting = Hosting::Standalone;
    SceneFileHandler* m_sceneFiles = nullptr;
    std::array<QAction*, std::size_t(ActionId::Count)> m_actions{};
    QMenu* m_viewMenu = nullptr;
    QAction* m_helpMenuAction = nullptr;
    RecentFilesMenu* m_recentFiles = nullptr;
    QComboBox* m_searchBox = nullptr;
};
