#include <gtest/gtest.h>

#include <vexel/base/SoPath.h>
#include <vexel/draggers/SoTransformManip.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTransform.h>

namespace {

class Manips : public testing::Test {
protected:
    static void SetUpTestSuite() { SoDB::init(); }
};

} // namespace

TEST_F(Manips, TakesThePlaceOfAChildAndGivesItBack)
{
    auto* root = new SoSeparator;
    root->ref();
    auto* source = new SoTransform;
    source->ref();
    auto* plain = new SoTransform;
    plain->setName("arm");
    plain->translation = SbVec3f(1, 2, 3);
    plain->rotation.connectFrom(&source->rotation);
    root->addChild(new SoCube);
    root->addChild(plain);
    auto* path = new SoPath(root);
    path->ref();
    path->append(1);

    auto* manip = new SoTransformManip;
    ASSERT_TRUE(manip->replaceNode(path));
    EXPECT_EQ(root->getChild(1), manip);
    EXPECT_EQ(path->getTail(), manip);
    EXPECT_EQ(manip->translation.getValue(), SbVec3f(1, 2, 3));
    EXPECT_EQ(manip->rotation.getConnectedField(), &source->rotation);
    EXPECT_EQ(manip->getName(), SbName("arm"));
    EXPECT_TRUE(manip->scaleFactor.isDefault());

    manip->translation = SbVec3f(4, 5, 6);
    ASSERT_TRUE(manip->replaceManip(path, nullptr));
    EXPECT_EQ(root->getChild(1)->getTypeId(), SoTransform::getClassTypeId());
    EXPECT_EQ(static_cast<SoTransform*>(root->getChild(1))->translation.getValue(), SbVec3f(4, 5, 6));
    EXPECT_EQ(path->getTail(), root->getChild(1));
    path->unref();
    root->unref();
    source->unref();
}

TEST_F(Manips, RefusesAPathToSomethingElse)
{
    auto* root = new SoSeparator;
    root->ref();
    root->addChild(new SoCube);
    auto* path = new SoPath(root);
    path->ref();
    path->append(0);
    auto* manip = new SoTransformManip;
    manip->ref();
    EXPECT_FALSE(manip->replaceNode(path));
    EXPECT_FALSE(manip->replaceNode(nullptr));
    EXPECT_TRUE(root->getChild(0)->isOfType(SoCube::getClassTypeId()));
    EXPECT_EQ(path->getFullLength(), 2);
    manip->unref();
    path->unref();
    root->unref();
}

TEST_F(Manips, TakesThePlaceOfAPart)
{
    auto* kit = new SoShapeKit;
    kit->ref();
    SoNode* plain = kit->getPart("transform", true);
    auto* path = new SoPath(kit);
    path->ref();
    path->append((*kit->getChildren())[0]);
    path->append(plain);
    auto* manip = new SoTransformManip;
    ASSERT_TRUE(manip->replaceNode(path));
    EXPECT_EQ(kit->transform.getValue(), manip);
    EXPECT_EQ(path->getNode(path->getFullLength() - 1), manip);
    path->unref();
    kit->unref();
}
