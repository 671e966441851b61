#include <vexel/engines/SoComposeRotation.h>
#include <vexel/nodes/SoTransform.h>

#include "EngineFixture.h"

namespace {

using ComposeRotationTest = EngineTest;

} // namespace

TEST_F(ComposeRotationTest, MakesAsManyAsTheLongerListHas)
{
    const HeldEngine<SoComposeRotation> compose;
    SoMFRotation rotations;
    ASSERT_TRUE(rotations.connectFrom(&compose->rotation));
    ASSERT_EQ(rotations.getNum(), 1);
    EXPECT_TRUE(rotations[0].equals(SbRotation::identity(), 1e-6f));

    const float angles[] = {1, 2, 3};
    compose->axis = SbVec3f(0, 1, 0);
    compose->angle.setValues(angles, 3);
    ASSERT_EQ(rotations.getNum(), 3);
    EXPECT_TRUE(rotations[2].equals(SbRotation(SbVec3f(0, 1, 0), 3), 1e-6f));

    compose->axis.setNum(0);
    EXPECT_TRUE(rotations[1].equals(SbRotation(SbVec3f(0, 0, 1), 2), 1e-6f));
    compose->angle.setNum(0);
    ASSERT_EQ(rotations.getNum(), 1);
    EXPECT_TRUE(rotations[0].equals(SbRotation::identity(), 1e-6f));
}

TEST_F(ComposeRotationTest, TurnsATransform)
{
    auto* transform = new SoTransform;
    transform->ref();
    auto* compose = new SoComposeRotation;
    ASSERT_TRUE(transform->rotation.connectFrom(&compose->rotation));
    const float angles[] = {1, 2};
    compose->angle.setValues(angles, 2); // a single field takes the first
    EXPECT_TRUE(transform->rotation.getValue().equals(SbRotation(SbVec3f(0, 0, 1), 1), 1e-5f));
    transform->rotation.disconnect();
    EXPECT_TRUE(transform->rotation.getValue().equals(SbRotation(SbVec3f(0, 0, 1), 1), 1e-5f));
    transform->unref();
}
