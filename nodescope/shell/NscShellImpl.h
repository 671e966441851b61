#pragma once

#include <extension/NscShell.h>
#include <nodescope/NodescopeApi.h>
#include <nodescope/shell/EditorRegistry.h>

#include <QPointer>
#include <map>
#include <memory>
#include <set>

class QAction;
class SoNodescopeMainFrame;

/** Gives extensions their place in the main window, which it owns. */
class NODESCOPE_API NscShellImpl : public NscShell {
    Q_OBJECT
public:
    /** A page of the preferences dialog that an extension added; slots as written in SLOT(). */
    struct PreferencePage {
        QPointer<QWidget> page; ///< null: its owner deleted it
        QByteArray loadSlot;
        QByteArray saveSlot;
    };
    using PreferencePages = std::map<NscExtension*, PreferencePage>;

    /** The shell, created on first use with a main window inside `parent`. */
    static NscShellImpl* getInstance(QWidget* parent = nullptr);
    /** Creates the shell; with one there already this posts an error and does nothing. */
    static void createInstance(QWidget* parent);
    /** Deletes the shell and the main window, if there are any. */
    static void deleteInstance();
    ~NscShellImpl() override;

    SoNodescopeMainFrame* getMainFrame() const { return m_mainFrame.get(); }
    const PreferencePages& getPreferencePages() const { return m_preferencePages; }

    void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) override;
    void removeDockWidget(QDockWidget* dock) override;
    std::vector<NscExtension*> getExtensions(SoType type) const override;
    void registerExtension(SoType type, bool exact, NscExtension* extension) override;
    void addMenu(QMenu* menu) override;
    void addViewToggle(NscExtension* extension, bool isVisible) override;
    void unregisterExtension(NscExtension* extension) override;
    void removeMenu(QMenu* menu) override;
    void removeViewToggle(NscExtension* extension) override;
    void addPreferencePage(NscExtension* extension, QWidget* page, const char* loadSlot, const char* saveSlot) override;
    void removePreferencePage(NscExtension* extension) override;
    void clearStatusMessage() override;
    void addStatusWidget(QWidget* widget, bool isPermanent, int stretch) override;
    void showStatusMessage(const SbString& text, int timeout) override;
    void removeStatusWidget(QWidget* widget) override;
    void addToolBar(QToolBar* bar, Qt::ToolBarArea area) override;
    void removeToolBar(QToolBar* bar) override;
    void setViewToggle(NscExtension* extension, bool isVisible) override;

public slots:
    void s_viewChanged(bool isVisible);

private:
    explicit NscShellImpl(QWidget* parent);

    QAction* viewToggle(const NscExtension* extension) const;
    /** Takes back all that is under the extension's pointer when it is deleted. */
    void forgetWithItsEnd(NscExtension* extension);

    std::unique_ptr<SoNodescopeMainFrame> m_mainFrame;
    std::map<QAction*, NscExtension*> m_viewToggles;
    EditorRegistry m_editors;
    PreferencePages m_preferencePages;
    std::set<NscExtension*> m_followed;
};
