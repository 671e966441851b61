#include "ShapeFixture.h"

#include <QGuiApplication>

#include <vexel/base/SoDebugError.h>

namespace {

/** Gives the tests of texts the application object that fonts need, without any display. */
class Texts : public ShapeTest {
protected:
    static void SetUpTestSuite()
    {
        ShapeTest::SetUpTestSuite();
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "test";
        static char* argv[] = {name, nullptr};
        // Kept to the end of the process: the platform plug-in does not give back its screen.
        static auto* application = new QGuiApplication(argc, argv);
        ASSERT_EQ(application, QCoreApplication::instance());
    }
};

class TextsBeforeTheApplication : public ShapeTest {};

} // namespace

TEST_F(TextsBeforeTheApplication, AreLeftOutWithAMessage)
{
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    SoDebugError::setHandlerCallback([](const SoError*, void*) {}, nullptr);
    build("Text2 { string \"H\" } Text3 { string \"H\" } AsciiText { string \"H\" }");
    EXPECT_TRUE(geometry().isEmpty());
    SoDebugError::setHandlerCallback(nullptr, nullptr);
}

TEST_F(Texts, FlatTextHasTheSizeOfItsFontAndFacesFront)
{
    build("Font { size 10 } AsciiText { string \"H\" }");
    ASSERT_GT(geometry().getNumTriangles(), 0u);
    expectNormalsOnTheFrontSide();
    EXPECT_EQ(geometry().normals[0], SbVec3f(0, 0, 1));
    const SbVec3f size = geometry().getBoundingBox().getSize();
    EXPECT_GT(size[1], 5);
    EXPECT_LT(size[1], 10);
    EXPECT_EQ(size[2], 0);
    EXPECT_EQ(action.box, geometry().getBoundingBox());
    const double one = area();
    build("Font { size 20 } AsciiText { string \"H\" }");
    EXPECT_NEAR(area(), 4 * one, 0.01 * one);
    build("Font { size 10 } AsciiText { string [ \"H\", \"H\", \"\" ] spacing 2 }");
    EXPECT_NEAR(area(), 2 * one, 0.01 * one);
    EXPECT_NEAR(geometry().getBoundingBox().getMin()[1], -20, 1);
}

TEST_F(Texts, HolesOfLettersAreOpen)
{
    build("Font { size 10 } AsciiText { string \"O\" }");
    for (std::size_t i = 0; i < geometry().getNumTriangles(); ++i)
        EXPECT_GE(cross(i)[2], -1e-4);
    const SbVec3f size = geometry().getBoundingBox().getSize();
    EXPECT_LT(area(), 0.8 * size[0] * size[1]);
}

TEST_F(Texts, WidthAndJustificationMoveTheLines)
{
    build("Font { size 10 } AsciiText { string \"HHHH\" width 100 }");
    EXPECT_NEAR(geometry().getBoundingBox().getSize()[0], 100, 10);
    build("Font { size 10 } AsciiText { string \"HHHH\" justification CENTER }");
    EXPECT_NEAR(geometry().getBoundingBox().getCenter()[0], 0, 1);
    build("Font { size 10 } AsciiText { string \"HHHH\" justification RIGHT }");
    EXPECT_LE(geometry().getBoundingBox().getMax()[0], 0.5);
}

TEST_F(Texts, SolidTextIsClosedAndItsPartsHaveMaterials)
{
    for (const char* letters : {"H", "O", "ij"}) {
        build(std::string("Font { size 10 } Text3 { parts ALL string \"") + letters + "\" }");
        const double inside = volume();
        EXPECT_GT(inside, 0);
        build(std::string("Font { size 10 } Text3 { parts FRONT string \"") + letters + "\" }");
        // One unit deep.
        EXPECT_NEAR(inside, area(), 0.001 * inside) << letters;
    }
    build("MaterialBinding { value PER_PART } Text3 { parts ALL string \"H\" }");
    for (std::size_t i = 0; i < geometry().getNumTriangles(); ++i)
        EXPECT_EQ(int(geometry().materialIndices[geometry().triangles[3 * i]]), geometry().triangleParts[i]);
    EXPECT_EQ(geometry().triangleParts.back(), 2);
}

TEST_F(Texts, TextOnTheScreenKeepsItsSizeInPixels)
{
    action.state().setViewportRegion(SbViewportRegion(200, 200));
    const auto heightOnScreen = [&](const std::string& camera) {
        const std::string text = "Separator { " + camera + " Font { size 20 } Text2 { string \"H\" } }";
        build(text);
        return geometry().getBoundingBox().getSize()[1];
    };
    const float near = heightOnScreen("OrthographicCamera { height 10 }");
    const float far = heightOnScreen("OrthographicCamera { height 100 }");
    EXPECT_GT(near, 0.5f);
    EXPECT_LT(near, 1);
    EXPECT_NEAR(far, 10 * near, 0.01f);
}
