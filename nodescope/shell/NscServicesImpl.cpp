#include "NscServicesImpl.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/viewer/SoSceneManager.h>

#include <utility>

namespace {

NscServicesImpl* instance = nullptr;

void scheduleRedraw(void*, SoSelection*)
{
    if (instance && instance->getSceneManager())
        instance->getSceneManager()->scheduleRedraw();
}

void deselectField(void* services, SoSensor*)
{
    static_cast<NscServicesImpl*>(services)->setSelectedField(nullptr);
}

void deselectNode(void* services, SoSensor*)
{
    static_cast<NscServicesImpl*>(services)->setSelectedNode(nullptr);
}

} // namespace

NscServicesImpl* NscServicesImpl::getInstance()
{
    if (!instance)
        instance = new NscServicesImpl;
    return instance;
}

void NscServicesImpl::deleteInstance()
{
    delete instance;
}

NscServicesImpl::NscServicesImpl() : m_commandManager(std::make_unique<SoCommandManager>())
{
    m_selectedField.setDeleteCallback(deselectField, this);
    m_selectedNode.setDeleteCallback(deselectNode, this);
    connect(this, &NscServices::selectedNodeChanged, m_commandManager.get(), &SoCommandManager::selectedNodeChanged);
}

NscServicesImpl::~NscServicesImpl()
{
    m_commandManager.reset(); // with the nodes that its history holds; one of them may be selected
    setSelection(nullptr);
    instance = nullptr;
}

void NscServicesImpl::setSelection(SoSelection* selection)
{
    if (selection)
        selection->ref();
    if (m_selection) {
        m_selection->removeChangeCallback(scheduleRedraw);
        m_selection->unref();
    }
    m_selection = selection;
    if (m_selection)
        m_selection->addChangeCallback(scheduleRedraw);
}

void NscServicesImpl::announceSceneGraph(SoNode* root)
{
    m_sceneGraph = root;
    if (m_selectedField.get())
        setSelectedField(nullptr); // it belongs to the scene that went
    emit sceneGraphChanged(root);
}

void NscServicesImpl::pushCommand(NscCommand* command)
{
    m_commandManager->addCommand(command);
}

SoSelection* NscServicesImpl::getSelection() const
{
    return SoNodescopeViewer::getInstance()->selection();
}

void NscServicesImpl::redo()
{
    m_commandManager->redo();
}

void NscServicesImpl::setSceneGraph(SoNode* root)
{
    SoNodescopeViewer::getInstance()->setSceneGraph(root, true); // which announces it
}

void NscServicesImpl::setSelectedField(SoField* field)
{
    m_selectedField.set(field);
    m_fieldIsDue = m_isAnnouncingNode;
    if (!m_fieldIsDue)
        emit selectedFieldChanged(field);
}

void NscServicesImpl::setSelectedNode(SoFieldContainer* node)
{
    m_selectedNode.set(node);
    const bool isNested = std::exchange(m_isAnnouncingNode, true);
    emit selectedNodeChanged(node);
    m_isAnnouncingNode = isNested;
    if (!isNested && std::exchange(m_fieldIsDue, false))
        emit selectedFieldChanged(m_selectedField.get());
}

void NscServicesImpl::undo()
{
    m_commandManager->undo();
}
