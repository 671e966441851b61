#include "EditFixture.h"

#include <nodescope/edit/SoTreeAddNodeCommand.h>
#include <tests/support/ModalAnswers.h>
#include <vexel/nodes/SoCone.h>

#include <QAction>

namespace {

using Adding = EditTest;

void expectRefusal(ModalAnswers& answers)
{
    answers.expectBox("Add node", "Can not add this node", QMessageBox::Ok, QMessageBox::Ok);
}

} // namespace

TEST_F(Adding, AGroupTakesTheNodeBehindItsChildren)
{
    show("Separator { Group { Cube { } } Sphere { } }");
    const std::string before = text();
    choose({0});
    view->insertNode("Cone");
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n  Cone\n Sphere\n");
    manager.undo();
    EXPECT_EQ(text(), before);
    manager.redo();
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n  Cone\n Sphere\n");
}

TEST_F(Adding, ALeafGetsTheNodesBehindItAndLaterOnesGoIntoItsParent)
{
    show("Separator { Cube { } Sphere { } }");
    const std::string before = text();
    auto* command = new SoTreeAddNodeCommand(manager, row({0}));
    EXPECT_TRUE(command->addType("Cone"));
    EXPECT_TRUE(command->addType("Cylinder"));
    EXPECT_EQ(rows(), "Separator\n Cube\n Cone\n Sphere\n Cylinder\n");
    manager.undo();
    EXPECT_EQ(text(), before) << "one undo takes back all of the command";
    manager.undo();
    EXPECT_EQ(text(), before) << "and its other entry has nothing left to do";
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
    manager.redo();
    EXPECT_EQ(rows(), "Separator\n Cube\n Cone\n Sphere\n Cylinder\n");
    manager.redo();
    EXPECT_EQ(rows(), "Separator\n Cube\n Cone\n Sphere\n Cylinder\n");
}

TEST_F(Adding, AListOfTypesIsOneMoreEntryThanItsNodes)
{
    show("Separator { }");
    auto* command = new SoTreeAddNodeCommand(manager, top());
    EXPECT_TRUE(command->addTypes({"Cone", "NoSuchType", "Cube", "Shape", "Sphere"}));
    EXPECT_EQ(rows(), "Separator\n Cone\n Cube\n Sphere\n");
    int entries = 0;
    for (; action(ActionId::Undo).isEnabled(); ++entries)
        manager.undo();
    EXPECT_EQ(entries, 4);
    EXPECT_EQ(rows(), "Separator\n");
}

TEST_F(Adding, ARootWithoutChildrenRefuses)
{
    show(new SoCone);
    ModalAnswers answers;
    expectRefusal(answers);
    choose({});
    view->insertNode("Cube");
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(Adding, PastingTwiceInsertsTheSameNodeTwice)
{
    SoSeparator* root = show("Separator { Group { DEF c Cube { width 3 } } }");
    const std::string before = text();
    manager.pasteNode();
    EXPECT_FALSE(action(ActionId::Undo).isEnabled()) << "nothing was copied yet";
    choose({0, 0});
    manager.copyNode();
    choose({});
    manager.pasteNode();
    manager.pasteNode();
    ASSERT_EQ(root->getNumChildren(), 3);
    EXPECT_EQ(root->getChild(1), root->getChild(2));
    EXPECT_NE(root->getChild(1), group(root->getChild(0))->getChild(0)) << "what is pasted is a copy";
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube c\n Cube c\n Cube c\n");
    for (int i = 0; i < 4; ++i)
        manager.undo();
    EXPECT_FALSE(action(ActionId::Undo).isEnabled()) << "each pasting is two entries";
    EXPECT_EQ(text(), before);
}

TEST_F(Adding, ARefusedPastingIsOneEntry)
{
    show("Separator { Cube { } }");
    choose({0});
    manager.copyNode();
    show(new SoCone);
    choose({});
    ModalAnswers answers;
    expectRefusal(answers);
    manager.pasteNode();
    EXPECT_TRUE(action(ActionId::Undo).isEnabled());
    manager.undo();
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(Adding, ANodeIsNotAddedBelowItself)
{
    SoSeparator* root = show("Separator { Group { } }");
    choose({0});
    manager.copyNode();
    choose({});
    manager.pasteNode();
    ASSERT_EQ(root->getNumChildren(), 2);
    ModalAnswers answers;
    choose({1});
    manager.pasteNode(); // goes beside itself
    EXPECT_EQ(rows(), "Separator\n Group\n Group\n Group\n");
}

TEST_F(Adding, WhatAKitArrangesTakesNoOtherNodes)
{
    show("Separator { ShapeKit { } }");
    const std::string before = text();
    view->setCurrentItem(row({0})); // the kit has no children of its own: the node goes behind it
    view->insertNode("Cube");
    EXPECT_NE(text(), before);
    manager.undo();
    EXPECT_EQ(text(), before);
}
