#pragma once

#include <extension/ExtensionApi.h>

#include <vexel/base/SbString.h>

#include <QObject>

class QMenu;

/**
 * Something that a plug-in adds to the inspector: a field editor, a panel, a menu.
 *
 * An extension is created when the configuration names it. activate() then lets it take its place in the shell; its
 * destructor gives back what it took, while shell and services still exist. GUI thread only.
 */
class NSC_API NscExtension : public QObject {
    Q_OBJECT
public:
    /** What the inspector shows of an extension. */
    struct Info {
        SbString name; ///< as in the configuration; title of its view toggle and its preference page
    };

    explicit NscExtension(Info info);
    ~NscExtension() override;

    const Info& getInfo() const { return m_info; }

    /** Gives it an extension that it controls, for example the editor of one field type; called before activate(). The
     * controlled extension is activated already and lives longer than this one. By default nothing happens. */
    virtual void addControlledExtension(NscExtension* extension);
    /** Called once, after the extensions that it controls were activated. What it throws is reported, and the extension
     * is deleted. */
    virtual void activate() = 0;

    /** The user switched its view toggle on or off. */
    ///@{
    virtual void show() = 0;
    virtual void hide() = 0;
    ///@}

    /** A menu for a node of one of the types that the extension is registered for, shown as part of the node's context
     * menu in the tree; asked for each time. The extension owns it. By default null: none. */
    virtual QMenu* getNodeMenu();

private:
    Info m_info;
};
