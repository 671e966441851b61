#include "SceneView.h"

#include <string>

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoHandleEventAction.h>
#include <vexel/actions/SoLocation2Event.h>
#include <vexel/actions/SoMouseButtonEvent.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoExtSelection.h>
#include <vexel/nodes/SoLocateHighlight.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

class MouseView : public SceneView {
protected:
    void send(SoEvent& event, int x, int y, bool shift = false)
    {
        event.setPosition(SbVec2s(static_cast<short>(x), static_cast<short>(y)));
        event.setModifiers(shift, false, false);
        handle.setEvent(&event);
        handle.apply(root);
    }

    void button(SoButtonEvent::State state, int x, int y, bool shift = false)
    {
        SoMouseButtonEvent event;
        event.setButton(SoMouseButtonEvent::BUTTON1);
        event.setState(state);
        send(event, x, y, shift);
    }

    void move(int x, int y)
    {
        SoLocation2Event event;
        send(event, x, y);
    }

    SoHandleEventAction handle{region};
};

/** Two squares of 16 pixels: red at the left, hidden in part by a white one, green at the right. */
class Lasso : public MouseView {
protected:
    void SetUp() override
    {
        MouseView::SetUp();
        read("ExtSelection { policy SINGLE"
             " Separator { BaseColor { rgb 1 0 0 } Translation { translation -0.5 0 0 } Cube { width 0.5 height 0.5 } }"
             " Separator { BaseColor { rgb 0 1 0 } Translation { translation 0.5 0 0 } Cube { width 0.5 height 0.5 } }"
             " Separator { Translation { translation -0.5 0 -3 } Cube { width 0.25 height 0.25 depth 0.5 } }"
             " Separator { Translation { translation 0.25 0.75 0 } Sphere { radius 0.2 } } }");
        selection = static_cast<SoExtSelection*>(root->getChild(2));
    }
    void TearDown() override
    {
        handle.releaseGrabber();
        selection->deselectAll();
        MouseView::TearDown();
    }

    /** Numbers of the separators with what is selected. */
    std::string selected() const
    {
        std::string text;
        for (int i = 0; i < selection->getNumSelected(); ++i)
            text += std::to_string(selection->getPath(i)->getIndex(1));
        return text;
    }

    std::string dragged(SbVec2s from, SbVec2s to, bool shift = false)
    {
        button(SoButtonEvent::DOWN, from[0], from[1]);
        EXPECT_TRUE(handle.isHandled());
        EXPECT_EQ(selection, handle.getGrabber());
        move(to[0], (from[1] + to[1]) / 2);
        move(to[0], to[1]);
        button(SoButtonEvent::UP, to[0], to[1], shift);
        EXPECT_FALSE(handle.getGrabber());
        return selected();
    }

    SoExtSelection* selection = nullptr;
};

TEST_F(Lasso, WithoutALassoAPressPicks)
{
    button(SoButtonEvent::DOWN, 48, 32);
    EXPECT_EQ("1", selected());
    EXPECT_FALSE(handle.getGrabber());
}

TEST_F(Lasso, AClickPicks)
{
    selection->lassoType = SoExtSelection::RECTANGLE;
    EXPECT_EQ("1", dragged({48, 32}, {49, 32}));
    EXPECT_EQ("", dragged({32, 10}, {32, 10}));
}

TEST_F(Lasso, ARectangleSelectsWhatItHolds)
{
    selection->lassoType = SoExtSelection::RECTANGLE;
    EXPECT_EQ("1", dragged({38, 22}, {60, 42}));
    EXPECT_EQ("02", dragged({26, 42}, {5, 20}));
    EXPECT_EQ("012", dragged({4, 20}, {60, 42}));
    EXPECT_EQ("", dragged({28, 5}, {36, 10}));
}

TEST_F(Lasso, ThePolicySaysHowMuchMustBeInside)
{
    selection->lassoType = SoExtSelection::RECTANGLE;
    struct Case {
        SoExtSelection::LassoPolicy policy;
        const char* wholeSquare;
        const char* halfSquare;
        const char* cornerOfBallsBox;
    };
    for (const Case& rule :
         {Case{SoExtSelection::FULL_BBOX, "1", "", ""}, Case{SoExtSelection::PART_BBOX, "1", "1", "3"},
          Case{SoExtSelection::FULL, "1", "", ""}, Case{SoExtSelection::PART, "1", "1", ""}}) {
        selection->lassoPolicy = rule.policy;
        EXPECT_EQ(rule.wholeSquare, dragged({38, 22}, {60, 42})) << rule.policy;
        EXPECT_EQ(rule.halfSquare, dragged({38, 22}, {48, 42})) << rule.policy;
        EXPECT_EQ(rule.cornerOfBallsBox, dragged({31, 50}, {34, 45})) << rule.policy;
    }
}

TEST_F(Lasso, HiddenShapesAreLeftOutWhereOnlyVisibleOnesCount)
{
    selection->lassoType = SoExtSelection::RECTANGLE;
    selection->lassoMode = SoExtSelection::VISIBLE_SHAPES;
    EXPECT_EQ("0", dragged({4, 20}, {30, 44}));
}

TEST_F(Lasso, AnEllipseHasNoCorners)
{
    selection->lassoType = SoExtSelection::ELLIPSE;
    EXPECT_EQ("", dragged({39, 23}, {57, 41}));
    EXPECT_EQ("1", dragged({35, 19}, {61, 45}));
}

TEST_F(Lasso, AFreeLineGoesAroundThings)
{
    selection->lassoType = SoExtSelection::LASSO;
    button(SoButtonEvent::DOWN, 2, 18);
    // Around both squares, with a notch that leaves the green one out.
    for (const SbVec2s& place : {SbVec2s(62, 18), SbVec2s(62, 20), SbVec2s(30, 20), SbVec2s(30, 45), SbVec2s(2, 45)})
        move(place[0], place[1]);
    button(SoButtonEvent::UP, 2, 45);
    EXPECT_EQ("02", selected());
}

TEST_F(Lasso, TheShiftKeyTogglesWhatIsInside)
{
    selection->policy = SoSelection::SHIFT;
    selection->lassoType = SoExtSelection::RECTANGLE;
    EXPECT_EQ("1", dragged({38, 22}, {60, 42}));
    EXPECT_EQ("02", dragged({4, 20}, {60, 42}, true));
}

TEST_F(Lasso, TheLineIsSeenWhileItIsDrawn)
{
    selection->lassoType = SoExtSelection::RECTANGLE;
    const QImage before = draw();
    SoGetBoundingBoxAction box(region);
    box.apply(root);
    const SbBox3f bounds = box.getBoundingBox();
    button(SoButtonEvent::DOWN, 10, 10);
    move(54, 50);
    const QImage picture = draw();
    for (const QPoint& place : {QPoint(30, 53), QPoint(10, 30), QPoint(54, 30), QPoint(30, 13)})
        EXPECT_COLOR(picture.pixelColor(place), 255, 230, 77);
    EXPECT_COLOR(picture.pixelColor(48, 32), 0, 255, 0);
    box.apply(root);
    EXPECT_EQ(bounds, box.getBoundingBox());
    move(20, 20);
    EXPECT_COLOR(draw().pixelColor(54, 30), 0, 255, 0);
    button(SoButtonEvent::UP, 20, 20);
    EXPECT_EQ(before, draw());
}

class Locate : public MouseView {
protected:
    void SetUp() override
    {
        MouseView::SetUp();
        read("LightModel { model PHONG } LocateHighlight { color 0 0.6 0 Material { ambientColor 0 0 0"
             " diffuseColor 1 0 0 } Cube { width 0.5 height 0.5 } }");
        highlight = static_cast<SoLocateHighlight*>(root->getChild(3));
    }

    SoLocateHighlight* highlight = nullptr;
};

TEST_F(Locate, ShapesStandOutWhileThePointerIsOverThem)
{
    EXPECT_COLOR(at(0, 0.1f), 0, 0, 0);
    move(32, 32);
    EXPECT_FALSE(handle.isHandled());
    EXPECT_COLOR(at(0, 0.1f), 0, 153, 0);
    move(5, 5);
    EXPECT_COLOR(at(0, 0.1f), 0, 0, 0);
    button(SoButtonEvent::DOWN, 32, 32);
    EXPECT_COLOR(at(0, 0.1f), 0, 0, 0);
}

TEST_F(Locate, TheModeSaysWhetherThePointerCounts)
{
    highlight->mode = SoLocateHighlight::OFF;
    move(32, 32);
    EXPECT_COLOR(at(0, 0.1f), 0, 0, 0);
    highlight->mode = SoLocateHighlight::AUTO;
    EXPECT_COLOR(at(0, 0.1f), 0, 153, 0);
    highlight->mode = SoLocateHighlight::ON;
    move(5, 5);
    EXPECT_COLOR(at(0, 0.1f), 0, 153, 0);
    highlight->mode = SoLocateHighlight::AUTO;
    EXPECT_COLOR(at(0, 0.1f), 0, 0, 0);
}

TEST_F(Locate, TheStyleSaysWhichColorsChange)
{
    read("DirectionalLight { direction 0 0 -1 } LightModel { model PHONG } LocateHighlight { color 0 0.4 0"
         " Material { ambientColor 0 0 0 diffuseColor 1 0 0 } Cube { width 0.5 height 0.5 } }");
    highlight = static_cast<SoLocateHighlight*>(root->getChild(4));
    move(32, 32);
    EXPECT_COLOR(at(0, 0.1f), 255, 102, 0);
    highlight->style = SoLocateHighlight::EMISSIVE_DIFFUSE;
    EXPECT_COLOR(at(0, 0.1f), 0, 204, 0);
}

} // namespace
