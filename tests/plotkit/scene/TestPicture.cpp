#include "RecordingOutput.h"

#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>

#include <gtest/gtest.h>

namespace {

// A camera that sees 10 x 10 units, of which each has 19 millimetres on the page.
constexpr char Camera[] = "OrthographicCamera { position 0 0 5 nearDistance 1 farDistance 9 height 10 }\n";
constexpr double Unit = 19;

class Picture : public testing::Test {
protected:
    Picture()
    {
        SoDB::init();
        action.setViewportRegion(SbViewportRegion(100, 100));
        action.setPageSize(210, 210);
    }

    const RecordingSink& draw(const std::string& scene, bool hasCamera = true)
    {
        const std::string text = std::string("#Vexel V2.1 ascii\n") + (hasCamera ? Camera : "") + scene;
        SoInput input;
        input.setBuffer(text.data(), text.size());
        SoSeparator* const root = SoDB::readAll(&input);
        EXPECT_TRUE(root);
        root->ref();
        action.apply(root);
        EXPECT_EQ(1, root->getRefCount());
        root->unref();
        return action.output.recorded;
    }

    RecordingAction action;
};

constexpr char Red_square[] = "LightModel { model BASE_COLOR } BaseColor { rgb 1 0 0 }\n"
                              "Coordinate3 { point [ -1 -1 0, 1 -1 0, 1 1 0, -1 1 0 ] } FaceSet { }\n";
constexpr char Nearer_green_square[] = "BaseColor { rgb 0 1 0 } Translation { translation 1 0 1 } FaceSet { }\n";

TEST_F(Picture, liesInTheMiddleOfThePage)
{
    const RecordingSink& sink = draw(Red_square);
    EXPECT_TRUE(sink.isEnded);
    EXPECT_NEAR(10, sink.page.picture.left, 1e-9);
    EXPECT_NEAR(190, sink.page.picture.width, 1e-9);
    ASSERT_FALSE(sink.polygons.empty());
    EXPECT_NEAR(4 * Unit * Unit, sink.areaOf(&PageColor::red), 1e-3);
    for (const RecordingSink::Polygon& polygon : sink.polygons) {
        for (const ShadedCorner& corner : polygon.corners) {
            EXPECT_NEAR(Unit, std::abs(corner.point.x - 105), 1e-3);
            EXPECT_NEAR(Unit, std::abs(corner.point.y - 105), 1e-3);
        }
    }
}

TEST_F(Picture, showsWhatIsInFront)
{
    const RecordingSink& sink = draw(std::string(Red_square) + Nearer_green_square);
    EXPECT_NEAR(2 * Unit * Unit, sink.areaOf(&PageColor::red), 1e-3);
    EXPECT_NEAR(4 * Unit * Unit, sink.areaOf(&PageColor::green), 1e-3);
}

TEST_F(Picture, showsWhatIsBehindTransparentSurfacesFirst)
{
    const RecordingSink& sink = draw(
        std::string("Separator { Material { diffuseColor 0 1 0 transparency 0.5 } LightModel { model BASE_COLOR }\n"
                    "Translation { translation 0 0 1 } Coordinate3 { point [ -1 -1 0, 1 -1 0, 1 1 0, -1 1 0 ] }\n"
                    "FaceSet { } }\n") +
        Red_square);
    EXPECT_NEAR(4 * Unit * Unit, sink.areaOf(&PageColor::red), 1e-3);
    EXPECT_NEAR(4 * Unit * Unit, sink.areaOf(&PageColor::green), 1e-3);
    EXPECT_EQ(1, sink.polygons.front().corners[0].color.red);
    EXPECT_NEAR(0.5, sink.polygons.back().corners[0].color.alpha, 1e-6);
}

TEST_F(Picture, endsAtItsRectangle)
{
    const RecordingSink& sink =
        draw("LightModel { model BASE_COLOR } Coordinate3 { point [ -99 -1 0, 99 -1 0, 0 50 0 ] } FaceSet { }\n"
             "IndexedLineSet { coordIndex [ 0, 1, 2, 0 ] }");
    ASSERT_FALSE(sink.polygons.empty());
    ASSERT_FALSE(sink.lines.empty());
    const auto expectInside = [&](const PagePoint& point) {
        EXPECT_GE(point.x, sink.page.picture.left - 1e-3);
        EXPECT_LE(point.x, sink.page.picture.right() + 1e-3);
        EXPECT_GE(point.y, sink.page.picture.bottom - 1e-3);
        EXPECT_LE(point.y, sink.page.picture.top() + 1e-3);
    };
    for (const RecordingSink::Polygon& polygon : sink.polygons) {
        for (const ShadedCorner& corner : polygon.corners)
            expectInside(corner.point);
    }
    for (const RecordingSink::Line& line : sink.lines) {
        for (const PagePoint& point : line.points)
            expectInside(point);
    }
}

TEST_F(Picture, cutsLinesWhereTheyAreHidden)
{
    const RecordingSink& sink = draw(std::string(Red_square) +
                                     "DrawStyle { lineWidth 2 linePattern 0xff00 } Translation { translation 0 0 -1 }\n"
                                     "Coordinate3 { point [ -3 0 0, 3 0 0 ] } LineSet { }");
    ASSERT_EQ(2u, sink.lines.size());
    double length = 0;
    for (const RecordingSink::Line& line : sink.lines) {
        ASSERT_EQ(2u, line.points.size());
        length += line.points[1].x - line.points[0].x;
        EXPECT_NEAR(2 * 1.9, line.style.width, 1e-6); // a pixel has 1.9 millimetres
        EXPECT_EQ((std::vector<double>{8 * 1.9, 8 * 1.9}), line.style.dashes);
    }
    EXPECT_NEAR(4 * Unit, length, 1e-3);
}

TEST_F(Picture, joinsLinesThatGoOn)
{
    const RecordingSink& sink = draw("Coordinate3 { point [ -3 0 0, 0 1 0, 3 0 0 ] } LineSet { }");
    ASSERT_EQ(1u, sink.lines.size());
    EXPECT_EQ(3u, sink.lines[0].points.size());
}

TEST_F(Picture, showsPointsInTheirSize)
{
    const RecordingSink& sink =
        draw(std::string(Red_square) +
             "DrawStyle { pointSize 3 } Coordinate3 { point [ 0 0 1, 0 0 -1, 3 0 0 ] } PointSet { }");
    ASSERT_EQ(2u, sink.dots.size()); // one is behind the square
    EXPECT_NEAR(3 * 1.9, sink.dots[0].diameter, 1e-6);
    EXPECT_NEAR(105 + 3 * Unit, sink.dots[1].middle.x, 1e-3);
}

TEST_F(Picture, drawsOnlyEdgesWhereTheDrawStyleSaysSo)
{
    const RecordingSink& sink = draw(std::string("DrawStyle { style LINES }\n") + Red_square);
    EXPECT_TRUE(sink.polygons.empty());
    double length = 0;
    for (const RecordingSink::Line& line : sink.lines) {
        for (std::size_t i = 1; i < line.points.size(); ++i)
            length += std::hypot(line.points[i].x - line.points[i - 1].x, line.points[i].y - line.points[i - 1].y);
    }
    EXPECT_NEAR(8 * Unit, length, 1e-3);
}

TEST_F(Picture, isShadedFinelyWhereTheLightChanges)
{
    const RecordingSink& sink =
        draw("DirectionalLight { } Material { diffuseColor 1 0 0 } Complexity { value 0.3 } Sphere { radius 3 }");
    EXPECT_NEAR(3.14159 * 9 * Unit * Unit, sink.areaOf(&PageColor::red), 3.14159 * 9 * Unit * Unit * 0.06);
    float brightest = 0;
    float darkest = 1;
    for (const RecordingSink::Polygon& polygon : sink.polygons) {
        for (const ShadedCorner& corner : polygon.corners) {
            brightest = std::max(brightest, corner.color.red);
            darkest = std::min(darkest, corner.color.red);
        }
    }
    EXPECT_GT(brightest, 0.95f);
    EXPECT_LT(darkest, 0.3f);
}

TEST_F(Picture, hasTheGroundOfTheSceneOrTheGivenOne)
{
    action.setBackgroundColor(SbColorRGBA(0, 0, 1, 1));
    EXPECT_EQ(1, draw("Cube { }").grounds.back().first.blue);
    const RecordingSink& sink = draw("GradientBackground { color0 1 0 0 color1 0 1 0 } Cube { }");
    ASSERT_EQ(2u, sink.grounds.size());
    EXPECT_EQ(1, sink.grounds[1].first.green);
    EXPECT_EQ(1, sink.grounds[1].second.red);
    action.setBackgroundDrawn(false);
    draw("Cube { }");
    EXPECT_EQ(2u, sink.grounds.size());
}

TEST_F(Picture, ofASceneWithoutCameraShowsAllOfIt)
{
    EXPECT_FALSE(draw("Cube { }", false).polygons.empty());
}

TEST_F(Picture, survivesScenesThatMakeNoSense)
{
    draw("");
    draw("Coordinate3 { point [ nan 0 0, 1 0 0, 0 1 0, 0 0 0, 0 0 0, 0 0 0 ] } IndexedFaceSet { coordIndex [ 0, 1, 2, "
         "-1, 3, 4, 5, -1 ] }");
    draw("Scale { scaleFactor 0 0 0 } Sphere { }");
    draw("Coordinate3 { point [ 1e38 0 0, -1e38 0 0, 0 1e38 0 ] } FaceSet { }");
    SUCCEED();
}

TEST_F(Picture, thatIsCancelledLeavesNoFile)
{
    action.setProgressCallback([](double) { return false; });
    draw(Red_square);
    EXPECT_FALSE(action.output.recorded.isEnded);
    EXPECT_FALSE(action.output.closeFile());
    EXPECT_FALSE(action.output.hasFile());
}

TEST_F(Picture, isAFileWhenItIsClosed)
{
    std::vector<double> parts;
    action.setProgressCallback([&](double part) {
        parts.push_back(part);
        return true;
    });
    draw(Red_square);
    EXPECT_FALSE(action.output.hasFile());
    EXPECT_TRUE(action.output.closeFile());
    EXPECT_TRUE(action.output.hasFile());
    ASSERT_FALSE(parts.empty());
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
}

} // namespace
