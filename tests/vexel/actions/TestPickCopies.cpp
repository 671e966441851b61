#include "SceneView.h"

#include <cmath>
#include <initializer_list>

#include <QtGui/QGuiApplication>

#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoArray.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoLOD.h>
#include <vexel/nodes/SoMultipleCopy.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

/** Picks of groups that show their children several times. */
class PickCopies : public SceneView {
protected:
    /** What is picked at a place; null for nothing. */
    const SoPickedPoint* pickAt(float x, float y)
    {
        pick.setNormalizedPoint(SbVec2f((x + 1) / 2, (y + 1) / 2));
        pick.apply(root);
        return pick.getPickedPoint();
    }

    /** Expects a cube of 0.2 at each place, below the group, hit a little beside its middle. */
    void expectCubesAt(std::initializer_list<SbVec2f> places)
    {
        for (const SbVec2f& place : places) {
            const SoPickedPoint* point = pickAt(place[0] + 0.04f, place[1] + 0.06f);
            ASSERT_TRUE(point) << place[0] << ' ' << place[1];
            EXPECT_EQ(root->getChild(2), point->getPath()->getNode(1));
            EXPECT_TRUE(point->getPath()->getTail()->isOfType(SoCube::getClassTypeId()));
            EXPECT_NEAR(0.04f, point->getObjectPoint()[0], 1e-3f);
            EXPECT_NEAR(0.06f, point->getObjectPoint()[1], 1e-3f);
            EXPECT_NEAR(place[0] + 0.04f, point->getPoint()[0], 1e-3f);
        }
    }

    SoRayPickAction pick{region};
};

TEST_F(PickCopies, EveryElementOfAnArray)
{
    read("Array { numElements1 3 separation1 0.5 0 0 numElements2 2 separation2 0 0.5 0 Cube { width 0.2 height 0.2 } "
         "}");
    expectCubesAt({{0, 0}, {0.5f, 0}, {0, 0.5f}, {0.5f, 0.5f}});
    EXPECT_FALSE(pickAt(0.25f, 0));
    EXPECT_FALSE(pickAt(0, -0.5f));
    auto* array = static_cast<SoArray*>(root->getChild(2));
    array->origin = SoArray::CENTER;
    expectCubesAt({{-0.5f, -0.25f}, {0, -0.25f}, {0.5f, 0.25f}});
    EXPECT_FALSE(pickAt(0, 0.04f));
    array->numElements1 = 1;
    expectCubesAt({{0, -0.25f}, {0, 0.25f}});
    EXPECT_FALSE(pickAt(0.5f, 0.25f));
}

TEST_F(PickCopies, EveryCopyOfMultipleCopy)
{
    read("MultipleCopy { matrix [ 1 0 0 0 0 1 0 0 0 0 1 0 -0.5 0 0 1, 1 0 0 0 0 1 0 0 0 0 1 0 0.5 0.5 0 1 ]"
         " Cube { width 0.2 height 0.2 } }");
    expectCubesAt({{-0.5f, 0}, {0.5f, 0.5f}});
    EXPECT_FALSE(pickAt(0, 0));
    SbMatrix moved = SbMatrix::identity();
    moved[3][1] = -0.5f;
    static_cast<SoMultipleCopy*>(root->getChild(2))->matrix.set1Value(1, moved);
    expectCubesAt({{-0.5f, 0}, {0, -0.5f}});
    EXPECT_FALSE(pickAt(0.5f, 0.5f));
}

TEST_F(PickCopies, EveryInstanceOfMultipleInstance)
{
    read("MultipleInstance { instanceParameters InstanceTransform { matrix"
         " [ 1 0 0 0 0 1 0 0 0 0 1 0 -0.5 0 0 1, 1 0 0 0 0 1 0 0 0 0 1 0 0.5 0.5 0 1 ] } Cube { width 0.2 height 0.2 } "
         "}");
    expectCubesAt({{-0.5f, 0}, {0.5f, 0.5f}});
    EXPECT_FALSE(pickAt(0, 0));
}

/** What is drawn and picked of things that look at the camera, after the camera moved. */
class CameraFollowers : public PickCopies {
protected:
    static void SetUpTestSuite()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "test";
        static char* argv[] = {name, nullptr};
        // Fonts need one. Kept to the end of the process: the platform plug-in does not give back its screen.
        static auto* application = new QGuiApplication(argc, argv);
        ASSERT_EQ(application, QCoreApplication::instance());
    }

    SoOrthographicCamera* camera() { return static_cast<SoOrthographicCamera*>(root->getChild(0)); }
    void pullBack(float z)
    {
        camera()->position = SbVec3f(0, 0, z);
        camera()->farDistance = z + 5;
    }
};

TEST_F(CameraFollowers, LODChoosesByDistance)
{
    read("LOD { range [10] Separator { BaseColor { rgb 1 0 0 } Cube { } } Separator { BaseColor { rgb 0 1 0 } Cube { } "
         "} }");
    EXPECT_COLOR(at(0, 0.1f), 255, 0, 0);
    EXPECT_EQ(0, pickAt(0, 0.1f)->getPath()->getIndex(2));
    pullBack(20);
    EXPECT_COLOR(at(0, 0.1f), 0, 255, 0);
    EXPECT_EQ(1, pickAt(0, 0.1f)->getPath()->getIndex(2));
    pullBack(5);
    EXPECT_COLOR(at(0, 0.1f), 255, 0, 0);
    static_cast<SoLOD*>(root->getChild(2))->range.set1Value(0, 2);
    EXPECT_COLOR(at(0, 0.1f), 0, 255, 0);
}

TEST_F(CameraFollowers, LevelOfDetailChoosesBySizeOnTheScreen)
{
    read("LevelOfDetail { screenArea [400] Separator { BaseColor { rgb 1 0 0 } Cube { } }"
         " Separator { BaseColor { rgb 0 1 0 } Cube { } } }");
    EXPECT_COLOR(at(0, 0.01f), 255, 0, 0);
    camera()->height = 20;
    EXPECT_COLOR(at(0, 0.01f), 0, 255, 0);
    EXPECT_EQ(1, pickAt(0, 0.01f)->getPath()->getIndex(2));
    camera()->height = 2;
    EXPECT_COLOR(at(0, 0.01f), 255, 0, 0);
}

TEST_F(CameraFollowers, Text2KeepsItsSizeAndPlaceOnTheScreen)
{
    read("BaseColor { rgb 0 1 0 } Font { size 24 } Text2 { string \"H\" }");
    const auto extent = [this] {
        const QImage picture = draw();
        QRect all;
        for (int i = 0; i < Size * Size; ++i) {
            if (picture.pixelColor(i % Size, i / Size).green() > 128)
                all |= QRect(i % Size, i / Size, 1, 1);
        }
        return all;
    };
    const QRect before = extent();
    ASSERT_GT(before.height(), 8);
    EXPECT_NEAR(Size / 2, before.left(), 4);
    camera()->height = 7;
    EXPECT_EQ(before, extent());
    camera()->height = 2;
    camera()->position = SbVec3f(0.5f, 0, 5);
    EXPECT_EQ(before.translated(-Size / 4, 0), extent());
    camera()->orientation = SbRotation(SbVec3f(0, 1, 0), 0.5f);
    camera()->position = SbVec3f(5 * std::sin(0.5f), 0, 5 * std::cos(0.5f));
    EXPECT_NEAR(before.width(), extent().width(), 1);
    EXPECT_EQ(before.height(), extent().height());
    // The left stem of the letter.
    const QRect after = extent();
    SoRayPickAction onStem(region);
    onStem.setPoint(SbVec2s(short(after.left() + 1), short(Size - 1 - after.center().y())));
    onStem.apply(root);
    EXPECT_TRUE(onStem.getPickedPoint());
    EXPECT_FALSE(pickAt(-0.5f, 0));
}

} // namespace
