#pragma once

#include <extension/ExtensionApi.h>

#include <QObject>

class NscCommand;
class SoField;
class SoFieldContainer;
class SoGuiRenderArea;
class SoNode;
class SoSceneManager;
class SoSelection;

/**
 * The state of the inspection: scene, selection, host, undo history. Panels and extensions speak to each other through
 * its signals. Exists while an inspection runs. GUI thread only.
 *
 * Nodes and fields are not referenced: what is selected must be followed with a sensor by whoever keeps it.
 */
class NSC_API NscServices : public QObject {
    Q_OBJECT
public:
    /** Null while no inspection runs. */
    static NscServices* getInstance();
    ~NscServices() override;

    /** Executes the command and keeps it for undo; the history owns it from then on. */
    virtual void pushCommand(NscCommand* command) = 0;
    /** Root of the displayed scene; its selection is what is marked in the 3D view. */
    virtual SoSelection* getSelection() const = 0;
    /** The field or node announced last; null: none. */
    virtual SoField* getSelectedField() const = 0;
    virtual SoFieldContainer* getSelectedNode() const = 0;
    virtual void redo() = 0;
    /** Shows another scene and empties the undo history; null: none. */
    virtual void setSceneGraph(SoNode* root) = 0;
    /** Announces a selection to all, also when it is the present one. */
    virtual void setSelectedField(SoField* field) = 0;
    virtual void setSelectedNode(SoFieldContainer* node) = 0;
    virtual void undo() = 0;
    /** What draws the scene; null when only a graph is inspected. */
    virtual SoSceneManager* getSceneManager() const = 0;
    /** Whether the inspector runs as a program of its own, not inside a host. */
    virtual bool isStandalone() const = 0;
    /** Where the scene is drawn; null when that is not known. */
    virtual SoGuiRenderArea* getRenderArea() const = 0;

signals:
    void sceneGraphChanged(SoNode* root);
    void selectedNodeChanged(SoFieldContainer* node);
    void selectedFieldChanged(SoField* field);

protected:
    /** Makes itself the instance; there may be none yet. */
    NscServices();
};
