#pragma once

#include <extension/ExtensionApi.h>

#include <QObject>
#include <vector>

class NscExtension;
class QDockWidget;
class QMenu;
class QToolBar;
class QWidget;
class SbString;
class SoType;

/**
 * The place of extensions in the main window, and the list of who edits which field type. Exists while an inspection
 * runs. GUI thread only.
 *
 * Widgets that are added get the main window as parent. Removing something that was not added does nothing. What an
 * extension registered under its own pointer (editors, view toggle, preference page) goes with it at the latest.
 */
class NSC_API NscShell : public QObject {
    Q_OBJECT
public:
    /** Null while no inspection runs. */
    static NscShell* getInstance();
    ~NscShell() override;

    /** Puts the dock into an area, or where the user left it: what the user moved, closed or tabbed comes back at the
     * next start. A dock is known by its object name; one without gets its title for a name. */
    virtual void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) = 0;
    virtual void removeDockWidget(QDockWidget* dock) = 0;
    /** First those registered for the type or a base of it, then those registered for exactly this type. */
    virtual std::vector<NscExtension*> getExtensions(SoType type) const = 0;
    /** Registers an editor for one type, or (not `exact`) also for all types derived from it. */
    virtual void registerExtension(SoType type, bool exact, NscExtension* extension) = 0;
    /** Puts a menu into the menu bar, in front of the help menu. */
    virtual void addMenu(QMenu* menu) = 0;
    /** Adds an entry to the view menu that calls the extension's show() and hide(). */
    virtual void addViewToggle(NscExtension* extension, bool isVisible) = 0;
    /** Takes back all that registerExtension() did for the extension. */
    virtual void unregisterExtension(NscExtension* extension) = 0;
    virtual void removeMenu(QMenu* menu) = 0;
    virtual void removeViewToggle(NscExtension* extension) = 0;
    /** Adds a page to the preferences dialog, or replaces the extension's page. The slots are slots of the extension,
     * written as in SLOT(): one loads the page's values, the other saves them. */
    virtual void addPreferencePage(NscExtension* extension, QWidget* page, const char* loadSlot,
                                   const char* saveSlot) = 0;
    virtual void removePreferencePage(NscExtension* extension) = 0;
    virtual void clearStatusMessage() = 0;
    /** `stretch` as for QStatusBar; a permanent widget is not hidden by messages. */
    virtual void addStatusWidget(QWidget* widget, bool isPermanent, int stretch) = 0;
    /** `timeout` in milliseconds; 0: until the next message. Text in Latin-1 characters. */
    virtual void showStatusMessage(const SbString& text, int timeout) = 0;
    virtual void removeStatusWidget(QWidget* widget) = 0;
    /** As for a dock; the user's place comes back for tool bars that are added in NscExtension::activate(). */
    virtual void addToolBar(QToolBar* bar, Qt::ToolBarArea area) = 0;
    virtual void removeToolBar(QToolBar* bar) = 0;
    /** Marks the extension's entry in the view menu without calling show() or hide(); for a view that the user closed
     * by other means. */
    virtual void setViewToggle(NscExtension* extension, bool isVisible) = 0;

protected:
    /** Makes itself the instance; there may be none yet. */
    NscShell();
};
