#include "EditFixture.h"

#include <vexel/nodes/SoMaterial.h>

namespace {

using Overriding = EditTest;

} // namespace

TEST_F(Overriding, SwitchesTheFlagOfTheShownNodeThereAndBack)
{
    SoSeparator* root = show("Separator { Material { } Cube { } }");
    choose({0});
    manager.nodeSetOverride(true);
    EXPECT_TRUE(root->getChild(0)->isOverride());
    manager.undo();
    EXPECT_FALSE(root->getChild(0)->isOverride());
    manager.redo();
    EXPECT_TRUE(root->getChild(0)->isOverride());
}

TEST_F(Overriding, WithoutANodeNothingIsRecorded)
{
    manager.nodeSetOverride(true);
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(Overriding, TheNodeMayGoMeanwhile)
{
    SoSeparator* root = show("Separator { Material { } }");
    choose({0});
    manager.nodeSetOverride(true);
    root->removeAllChildren(); // and with them the node
    manager.undo();
    manager.redo();
    EXPECT_EQ(rows(), "Separator\n");
}

TEST_F(Overriding, TheNodeCopiedFromMayGoMeanwhile)
{
    SoSeparator* root = show("Separator { Material { diffuseColor 1 0 0 } }");
    choose({0});
    manager.copyNode();
    root->removeAllChildren();
    choose({});
    manager.pasteNode();
    ASSERT_EQ(root->getNumChildren(), 1);
    const auto* copy = static_cast<const SoMaterial*>(root->getChild(0));
    EXPECT_EQ(copy->diffuseColor[0], SbColor(1, 0, 0));
}
