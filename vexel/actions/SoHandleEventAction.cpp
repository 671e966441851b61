#include <vexel/actions/SoHandleEventAction.h>

#include <vexel/actions/SoEvent.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/nodes/SoNode.h>

SoHandleEventAction::SoHandleEventAction(const SbViewportRegion& region)
{
    state().setViewportRegion(region);
}

SoHandleEventAction::~SoHandleEventAction()
{
    releaseGrabber();
}

void SoHandleEventAction::setGrabber(SoNode* node)
{
    if (node)
        node->ref();
    if (m_grabber)
        m_grabber->unref();
    m_grabber = node;
}

void SoHandleEventAction::beginTraversal()
{
    m_isHandled = false;
    m_root = nullptr;
    m_pick.reset();
}

void SoHandleEventAction::endTraversal()
{
    m_pick.reset();
}

void SoHandleEventAction::visitNode(SoNode& node)
{
    if (!m_root) {
        m_root = &node;
        if (m_grabber) {
            m_grabber->handleEvent(*this);
            return;
        }
    }
    SoAction::visitNode(node);
    if (!m_isHandled)
        node.handleEvent(*this);
    if (m_isHandled)
        setTerminated(true);
}

const SoPickedPoint* SoHandleEventAction::getPickedPoint()
{
    if (!m_pick) {
        m_pick = std::make_unique<SoRayPickAction>(state().getViewportRegion());
        m_pick->setPoint(m_event->getPosition());
        m_pick->setRadius(m_pickRadius);
        m_pick->apply(m_root);
    }
    return m_pick->getPickedPoint();
}
