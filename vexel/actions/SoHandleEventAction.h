#pragma once

#include <memory>

#include <vexel/actions/SoAction.h>

class SoEvent;
class SoPickedPoint;
class SoRayPickAction;

/**
 * Offers an event to the nodes of a graph, children before their parents, until one handles it; or to the one node that
 * grabbed all events.
 */
class VEXEL_API SoHandleEventAction : public SoAction {
    SO_ACTION(SoHandleEventAction, SoAction)
public:
    explicit SoHandleEventAction(const SbViewportRegion& region);
    ~SoHandleEventAction() override;

    void setViewportRegion(const SbViewportRegion& region) { state().setViewportRegion(region); }
    void setEvent(const SoEvent* event) { m_event = event; }
    const SoEvent* getEvent() const { return m_event; }

    /** A node that acted on the event says so; no other is asked then. */
    void setHandled() { m_isHandled = true; }
    bool isHandled() const { return m_isHandled; }

    /** The node that gets all events from now on, held until releaseGrabber(); the graph is not walked meanwhile. */
    void setGrabber(SoNode* node);
    void releaseGrabber() { setGrabber(nullptr); }
    SoNode* getGrabber() const { return m_grabber; }

    /** Radius in pixels within which lines and points are picked. */
    void setPickRadius(float pixels) { m_pickRadius = pixels; }
    float getPickRadius() const { return m_pickRadius; }
    /** What stands in front at the place of the event; found when first asked for. Null for nothing. */
    const SoPickedPoint* getPickedPoint();

protected:
    void beginTraversal() override;
    void endTraversal() override;
    void visitNode(SoNode& node) override;

private:
    const SoEvent* m_event = nullptr;
    SoNode* m_grabber = nullptr;
    SoNode* m_root = nullptr;
    std::unique_ptr<SoRayPickAction> m_pick;
    float m_pickRadius = 5;
    bool m_isHandled = false;
};
