#include "SceneView.h"

#include <vexel/actions/SoHandleEventAction.h>
#include <vexel/actions/SoMouseButtonEvent.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoEventCallback.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

class HandleEvent : public SceneView {
protected:
    /** Adds a node that notes what stands under each event, and takes the event when told so. */
    void addListener(bool handles)
    {
        m_handles = handles;
        auto* listener = new SoEventCallback;
        listener->addEventCallback(
            SoMouseButtonEvent::getClassTypeId(),
            [](void* self, SoEventCallback* node) { static_cast<HandleEvent*>(self)->listen(*node); }, this);
        root->addChild(listener);
    }

    bool sendTo(short x, short y)
    {
        SoMouseButtonEvent event;
        event.setPosition(SbVec2s(x, y));
        handle.setEvent(&event);
        handle.apply(root);
        return handle.isHandled();
    }

    SoHandleEventAction handle{region};
    int calls = 0;
    SoNode* picked = nullptr;

private:
    void listen(SoEventCallback& node)
    {
        ++calls;
        const SoPickedPoint* point = static_cast<SoHandleEventAction*>(node.getAction())->getPickedPoint();
        picked = point ? point->getPath()->getTail() : nullptr;
        if (m_handles)
            node.setHandled();
    }

    bool m_handles = false;
};

TEST_F(HandleEvent, TellsWhatStandsUnderTheEvent)
{
    read("Translation { translation 0.5 0 0 } Cube { width 0.5 height 0.5 }");
    addListener(false);
    EXPECT_FALSE(sendTo(Size * 3 / 4, Size / 2));
    EXPECT_EQ(root->getChild(3), picked);
    EXPECT_FALSE(sendTo(Size / 4, Size / 2));
    EXPECT_FALSE(picked);
    EXPECT_EQ(2, calls);
}

TEST_F(HandleEvent, StopsAtTheNodeThatHandlesTheEvent)
{
    addListener(true);
    addListener(true);
    EXPECT_TRUE(sendTo(1, 1));
    EXPECT_EQ(1, calls);
}

TEST_F(HandleEvent, AGrabberAloneGetsEventsUntilItIsReleased)
{
    addListener(false);
    addListener(false);
    handle.setGrabber(root->getChild(3));
    EXPECT_EQ(root->getChild(3), handle.getGrabber());
    sendTo(1, 1);
    EXPECT_EQ(1, calls);
    handle.releaseGrabber();
    sendTo(1, 1);
    EXPECT_EQ(3, calls);
}

} // namespace
