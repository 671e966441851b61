#include "SceneView.h"

#include <vexel/actions/SoBoxHighlightRenderAction.h>
#include <vexel/actions/SoHaloHighlightRenderAction.h>
#include <vexel/actions/SoLineHighlightRenderAction.h>
#include <vexel/actions/detail/CompiledScene.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

class Highlights : public SceneView {
protected:
    void SetUp() override
    {
        SceneView::SetUp();
        show("Selection { Separator { Translation { translation -0.5 0 0 }"
             " Cube { width 0.5 height 0.5 } } Separator { Translation { translation 0.5 0 0 }"
             " Cube { width 0.5 height 0.5 } } }");
        selection->select(selection->getChild(1));
    }
    void TearDown() override
    {
        selection->deselectAll(); // a path refers to where it begins
        SceneView::TearDown();
    }

    /** Draws a selection node, blue, in place of what was drawn. */
    void show(const char* selectionNode)
    {
        if (selection)
            selection->deselectAll();
        read((std::string("BaseColor { rgb 0 0 1 } ") + selectionNode).c_str());
        selection = static_cast<SoSelection*>(root->getChild(3));
    }

    /** Counts pixels of the marks' green in the left and right half. */
    static int marks(const QImage& picture, bool right)
    {
        int count = 0;
        for (int y = 0; y < Size; ++y) {
            for (int x = right ? Size / 2 : 0; x < (right ? Size : Size / 2); ++x)
                count += picture.pixelColor(x, y).green() > 100 ? 1 : 0;
        }
        return count;
    }

    void check(SoHighlightRenderAction& highlight)
    {
        highlight.setColor(SbColor(0, 1, 0));
        QImage picture = draw(highlight);
        EXPECT_EQ(0, marks(picture, false));
        EXPECT_GT(marks(picture, true), 20);
        EXPECT_COLOR(pixel(picture, 0.5f, 0.1f), 0, 0, 255);
        highlight.setVisible(false);
        EXPECT_EQ(0, marks(draw(highlight), true));
        highlight.setVisible(true);
        selection->deselectAll();
        EXPECT_EQ(0, marks(draw(highlight), true));
        highlight.releaseGraphics();
    }

    SoSelection* selection = nullptr;
};

TEST_F(Highlights, LinesMarkTheSelectedPathOnly)
{
    SoLineHighlightRenderAction highlight(region);
    check(highlight);
}

TEST_F(Highlights, LinesAreAsWideAndAsBrokenAsAsked)
{
    SoLineHighlightRenderAction highlight(region);
    highlight.setColor(SbColor(0, 1, 0));
    highlight.setLineWidth(2);
    const int thin = marks(draw(highlight), true);
    highlight.setLineWidth(4);
    const int wide = marks(draw(highlight), true);
    EXPECT_NEAR(2 * thin, wide, thin / 2);
    EXPECT_EQ(0xffff, highlight.getLinePattern());
    highlight.setLinePattern(0x3333);
    EXPECT_LT(marks(draw(highlight), true), wide * 7 / 8);
    highlight.setLinePattern(0);
    EXPECT_EQ(0, marks(draw(highlight), true));
    highlight.releaseGraphics();

    SoBoxHighlightRenderAction box(region);
    box.setColor(SbColor(0, 1, 0));
    box.setLineWidth(2);
    const int whole = marks(draw(box), true);
    box.setLinePattern(0x3333);
    EXPECT_LT(marks(draw(box), true), whole * 3 / 4);
    box.releaseGraphics();
}

TEST_F(Highlights, AHaloMayBeHidden)
{
    show("Selection { Translation { translation 0.5 0 0 } Cube { width 0.5 height 0.5 } }"
         " Translation { translation 0.5 0 2 } Cube { width 1 height 1 depth 1 }");
    selection->select(selection->getChild(1));
    SoHaloHighlightRenderAction highlight(region);
    highlight.setColor(SbColor(0, 1, 0));
    EXPECT_TRUE(highlight.isHaloAlwaysVisible());
    EXPECT_GT(marks(draw(highlight), true), 20);
    highlight.setHaloAlwaysVisible(false);
    EXPECT_EQ(0, marks(draw(highlight), true));
    // The same where edges are smoothed, so that the depth has several samples.
    const vexel::OffscreenTarget smooth(Size, Size, 4);
    for (const bool isVisible : {true, false}) {
        highlight.setHaloAlwaysVisible(isVisible);
        smooth.bind();
        highlight.apply(root);
        EXPECT_EQ(isVisible, marks(smooth.image(), true) > 20);
    }
    selection->deselectAll();
    highlight.releaseGraphics();
}

TEST_F(Highlights, OnlyThePlaceThatThePathLeadsToIsMarked)
{
    show("Selection { DEF twin Separator { Group { Cube { width 0.5 height 0.5 } } }"
         " Translation { translation 0.5 0 0 } USE twin Switch { USE twin } }");
    const auto packets = [this](std::initializer_list<int> way) {
        auto* path = new SoPath(selection);
        path->ref();
        for (const int index : way)
            path->append(index);
        vexel::CompiledScene scene(*root);
        scene.update(region);
        const std::size_t num = scene.tree().packetsBelow(*path).size();
        path->unref();
        return num;
    };
    EXPECT_EQ(2u, packets({}));
    EXPECT_EQ(1u, packets({0}));
    EXPECT_EQ(1u, packets({2, 0, 0}));
    EXPECT_EQ(0u, packets({1}));
    EXPECT_EQ(0u, packets({3, 0}));
}

TEST_F(Highlights, BoxesMarkTheSelectedPathOnly)
{
    SoBoxHighlightRenderAction highlight(region);
    check(highlight);
}

TEST_F(Highlights, HalosMarkTheSelectedPathOnly)
{
    SoHaloHighlightRenderAction highlight(region);
    check(highlight);
}

} // namespace
