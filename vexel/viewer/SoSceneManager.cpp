#include <vexel/viewer/SoSceneManager.h>

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/actions/SoHandleEventAction.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/viewer/SoSceneManagerImpl.h>

namespace {

// Drawing comes after what other sensors change in the graph.
constexpr std::uint32_t Redraw_priority = 10000;

} // namespace

SoSceneManager::SoSceneManager()
    : m_impl(std::make_unique<SoSceneManagerImpl>()), m_renderAction(std::make_unique<SoGLRenderAction>(m_region)),
      m_eventAction(std::make_unique<SoHandleEventAction>(m_region))
{
    m_changes.setFunction([](void* manager, SoSensor*) { static_cast<SoSceneManager*>(manager)->scheduleRedraw(); });
    m_changes.setData(this);
    m_changes.setPriority(0);
    m_redraw.setFunction([](void* data, SoSensor*) {
        auto* manager = static_cast<SoSceneManager*>(data);
        if (manager->m_renderFunction)
            manager->m_renderFunction(manager->m_renderData, manager);
    });
    m_redraw.setData(this);
    m_redraw.setPriority(Redraw_priority);
}

SoSceneManager::~SoSceneManager()
{
    m_impl->leaveInspector();
    setSceneGraph(nullptr);
}

void SoSceneManager::setSceneGraph(SoNode* root)
{
    if (root)
        root->ref();
    m_changes.detach();
    if (m_root)
        m_root->unref();
    m_root = root;
    if (m_root)
        m_changes.attach(m_root);
    scheduleRedraw();
}

void SoSceneManager::setGLRenderAction(SoGLRenderAction* action)
{
    m_renderAction.reset(action ? action : new SoGLRenderAction(m_region));
    m_renderAction->setViewportRegion(m_region);
    scheduleRedraw();
}

void SoSceneManager::setBackgroundColorRGBA(const SbColorRGBA& color)
{
    m_background = color;
    scheduleRedraw();
}

void SoSceneManager::setViewportRegion(const SbViewportRegion& region)
{
    m_region = region;
    m_renderAction->setViewportRegion(region);
    m_eventAction->setViewportRegion(region);
    scheduleRedraw();
}

void SoSceneManager::render()
{
    m_isRendering = true;
    if (m_prepareFunction)
        m_prepareFunction(m_prepareData, this);
    m_renderAction->setBackgroundColor(m_background);
    m_renderAction->apply(m_root);
    m_isRendering = false;
}

void SoSceneManager::releaseGraphics()
{
    m_renderAction->releaseGraphics();
}

bool SoSceneManager::processEvent(const SoEvent& event)
{
    m_eventAction->setEvent(&event);
    m_eventAction->apply(m_root);
    m_eventAction->setEvent(nullptr);
    return m_eventAction->isHandled();
}

void SoSceneManager::scheduleRedraw()
{
    if (!m_isRendering)
        m_redraw.schedule();
}

void SoSceneManager::setPrepareCallback(RenderCB function, void* data)
{
    m_prepareFunction = function;
    m_prepareData = data;
}

void SoSceneManager::setRenderCallback(RenderCB function, void* data)
{
    m_renderFunction = function;
    m_renderData = data;
}
