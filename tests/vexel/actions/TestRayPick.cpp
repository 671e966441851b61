#include "SceneView.h"

#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoAnnotation.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

class RayPick : public SceneView {
protected:
    const SoPickedPoint* pickAt(float x, float y)
    {
        pick.setNormalizedPoint(SbVec2f((x + 1) / 2, (y + 1) / 2));
        pick.apply(root);
        return pick.getPickedPoint();
    }

    SoRayPickAction pick{region};
};

TEST_F(RayPick, TellsPathAndPointThroughTransforms)
{
    read("Separator { Translation { translation 0.5 0 1 } Cube { width 0.5 height 0.5 depth 1 } }");
    const SoPickedPoint* point = pickAt(0.6f, 0.1f);
    ASSERT_TRUE(point);
    EXPECT_EQ(3, point->getPath()->getLength());
    EXPECT_EQ(2, point->getPath()->getIndex(1));
    EXPECT_EQ(1, point->getPath()->getIndex(2));
    EXPECT_NEAR(0.6f, point->getPoint()[0], 1e-3f);
    EXPECT_NEAR(1.5f, point->getPoint()[2], 1e-3f);
    EXPECT_NEAR(0.1f, point->getObjectPoint()[0], 1e-3f);
    EXPECT_NEAR(1, point->getNormal()[2], 1e-3f);
    EXPECT_FALSE(pickAt(-0.5f, 0));
}

TEST_F(RayPick, PixelsCountFromTheLowerLeftCorner)
{
    read("Translation { translation -0.5 -0.5 0 } Cube { width 0.5 height 0.5 }");
    pick.setPoint(SbVec2s(Size / 4, Size / 4));
    pick.apply(root);
    EXPECT_TRUE(pick.getPickedPoint());
    pick.setPoint(SbVec2s(Size / 4, Size * 3 / 4));
    pick.apply(root);
    EXPECT_FALSE(pick.getPickedPoint());
}

TEST_F(RayPick, AllHitsComeNearestFirst)
{
    read("Cube { depth 1 } Separator { Translation { translation 0 0 2 } Cube { depth 1 } }");
    pick.setPickAll(true);
    ASSERT_TRUE(pickAt(0.1f, 0.2f));
    ASSERT_EQ(4u, pick.getPickedPointList().size());
    EXPECT_NEAR(2.5f, pick.getPickedPoint(0)->getPoint()[2], 1e-3f);
    EXPECT_NEAR(-0.5f, pick.getPickedPoint(3)->getPoint()[2], 1e-3f);
    EXPECT_FALSE(pick.getPickedPoint(4));
}

TEST_F(RayPick, AnnotationsAreInFront)
{
    read("Annotation { Translation { translation 0 0 -3 } Cube { width 0.5 height 0.5 depth 1 } }"
         "Cube { width 1 height 1 depth 1 } Separator { Translation { translation 0 0 2 } Cube { width 0.5 } }");
    const SoPickedPoint* point = pickAt(0.1f, 0.2f);
    ASSERT_TRUE(point);
    EXPECT_EQ(root->getChild(2), point->getPath()->getNode(1));
    pick.setPickAll(true);
    ASSERT_TRUE(pickAt(0.1f, 0.2f));
    ASSERT_EQ(6u, pick.getPickedPointList().size());
    EXPECT_EQ(root->getChild(2), pick.getPickedPoint(1)->getPath()->getNode(1));
    EXPECT_EQ(root->getChild(4), pick.getPickedPoint(2)->getPath()->getNode(1));
    EXPECT_EQ(root->getChild(3), pick.getPickedPoint(5)->getPath()->getNode(1));
    EXPECT_EQ(root->getChild(3), pickAt(0.4f, 0.4f)->getPath()->getNode(1));
}

TEST_F(RayPick, WhatBecomesAnAnnotationComesToTheFront)
{
    read("Separator { Translation { translation 0 0 -2 } Separator { Cube { width 0.5 height 0.5 } } } Cube { depth 1 "
         "}");
    ASSERT_TRUE(pickAt(0, 0));
    EXPECT_EQ(root->getChild(3), pickAt(0, 0)->getPath()->getTail());
    auto* group = static_cast<SoSeparator*>(root->getChild(2));
    auto* front = new SoAnnotation;
    front->addChild(static_cast<SoSeparator*>(group->getChild(1))->getChild(0));
    group->replaceChild(1, front);
    EXPECT_EQ(front, pickAt(0, 0)->getPath()->getNode(2));
}

TEST_F(RayPick, RaysNeedNoCamera)
{
    read("Cube { }");
    pick.setRay(SbVec3f(-5, 0, 0), SbVec3f(1, 0, 0));
    pick.apply(root);
    ASSERT_TRUE(pick.getPickedPoint());
    EXPECT_NEAR(-1, pick.getPickedPoint()->getPoint()[0], 1e-3f);
    pick.setRay(SbVec3f(-5, 0, 0), SbVec3f(1, 0, 0), 0, 3);
    pick.apply(root);
    EXPECT_FALSE(pick.getPickedPoint());
}

TEST_F(RayPick, FaceDetailsTellFaceAndVertices)
{
    read("Coordinate3 { point [-1 -1 0, 0 -1 0, 0 1 0, -1 1 0, 1 -1 0, 1 1 0] }"
         "IndexedFaceSet { coordIndex [0 1 2 3 -1 1 4 5 2 -1] }");
    const SoPickedPoint* point = pickAt(0.5f, 0.1f);
    ASSERT_TRUE(point);
    const auto* detail = dynamic_cast<const SoFaceDetail*>(point->getDetail());
    ASSERT_TRUE(detail);
    EXPECT_EQ(1, detail->getFaceIndex());
    ASSERT_EQ(3, detail->getNumPoints());
    for (int i = 0; i < 3; ++i) {
        const int index = detail->getPoint(i).getCoordinateIndex();
        EXPECT_TRUE(index == 1 || index == 2 || index == 4 || index == 5) << index;
    }
}

TEST_F(RayPick, LinesAreMetWithinTheRadius)
{
    read("Coordinate3 { point [-1 0 0, 1 0 0] } LineSet { numVertices 2 }");
    pick.setRadius(4);
    const SoPickedPoint* point = pickAt(0, 0.1f);
    ASSERT_TRUE(point);
    EXPECT_TRUE(dynamic_cast<const SoLineDetail*>(point->getDetail()));
    EXPECT_FALSE(pickAt(0, 0.3f));
}

TEST_F(RayPick, PickStylesHideShapesOrLetTheirBoxCount)
{
    read("PickStyle { style UNPICKABLE } Cube { }");
    EXPECT_FALSE(pickAt(0, 0));
    read("PickStyle { style BOUNDING_BOX } Sphere { }");
    ASSERT_TRUE(pickAt(0.95f, 0.95f));
    EXPECT_FALSE(pick.getPickedPoint()->getDetail());
    read("Sphere { }");
    EXPECT_FALSE(pickAt(0.95f, 0.95f));
}

TEST_F(RayPick, ChangesBetweenPicksCount)
{
    read("Separator { Cube { } }");
    ASSERT_TRUE(pickAt(0, 0));
    auto* group = static_cast<SoSeparator*>(root->getChild(2));
    group->getChild(0)->set(SbString("width 0.2"));
    EXPECT_TRUE(pickAt(0, 0));
    EXPECT_FALSE(pickAt(0.5f, 0));
    root->insertChild(new SoSeparator, 0);
    ASSERT_TRUE(pickAt(0, 0));
    EXPECT_EQ(3, pick.getPickedPoint()->getPath()->getIndex(1));
    group->removeAllChildren();
    EXPECT_FALSE(pickAt(0, 0));
}

} // namespace
