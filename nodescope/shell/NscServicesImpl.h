#pragma once

#include <extension/NscServices.h>
#include <nodescope/NodescopeApi.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/sensors/SoWeakPtr.h>

#include <memory>

class SoCommandManager;

/** Holds the state of the inspection, and the undo history through which it changes. */
class NODESCOPE_API NscServicesImpl : public NscServices {
    Q_OBJECT
public:
    /** The services, created on first use. */
    static NscServicesImpl* getInstance();
    /** Deletes the services and with them the undo history, if there are any. */
    static void deleteInstance();
    ~NscServicesImpl() override;

    SoCommandManager* getCommandManager() const { return m_commandManager.get(); }

    /** What is known of the host; to be set before the main window is made. */
    ///@{
    void setStandalone(bool isStandalone) { m_isStandalone = isStandalone; }
    void setRenderArea(SoGuiRenderArea* renderArea) { m_renderArea = renderArea; }
    void setSceneManager(SoSceneManager* sceneManager) { m_sceneManager = sceneManager; }
    ///@}

    /** The selection node whose changes cause redraws; null: none. It is referenced. */
    void setSelection(SoSelection* selection);
    /** The viewer shows another scene: keeps and announces it. */
    void announceSceneGraph(SoNode* root);

    void pushCommand(NscCommand* command) override;
    SoSelection* getSelection() const override;
    SoField* getSelectedField() const override { return m_selectedField.get(); }
    SoFieldContainer* getSelectedNode() const override { return m_selectedNode.get(); }
    void redo() override;
    void setSceneGraph(SoNode* root) override;
    void setSelectedField(SoField* field) override;
    void setSelectedNode(SoFieldContainer* node) override;
    void undo() override;
    SoSceneManager* getSceneManager() const override { return m_sceneManager; }
    bool isStandalone() const override { return m_isStandalone; }
    SoGuiRenderArea* getRenderArea() const override { return m_renderArea; }

private:
    NscServicesImpl();

    std::unique_ptr<SoCommandManager> m_commandManager;
    // What is selected belongs to the host, which may destroy it at any time.
    SoWeakPtr<SoField> m_selectedField;
    SoWeakPtr<SoFieldContainer> m_selectedNode;
    // A field that is selected in answer to a node is announced when everybody knows the node.
    bool m_isAnnouncingNode = false;
    bool m_fieldIsDue = false;
    SoNode* m_sceneGraph = nullptr;
    SoSelection* m_selection = nullptr;
    SoGuiRenderArea* m_renderArea = nullptr;
    SoSceneManager* m_sceneManager = nullptr;
    bool m_isStandalone = false;
};
