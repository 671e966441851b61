#include "EditFixture.h"

#include <tests/support/ModalAnswers.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoSeparatorKit.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoCone.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoEventCallback.h>
#include <vexel/nodes/SoFile.h>

namespace {

using Deleting = EditTest;

constexpr QMessageBox::StandardButton Ok = QMessageBox::Ok;

SoTreeViewItem* findRow(SoTreeViewItem* row, const QString& name)
{
    if (row->text(SoTreeViewItem::NameColumn) == name)
        return row;
    for (int i = 0; i < row->childCount(); ++i) {
        if (SoTreeViewItem* found = findRow(row->childRow(i), name))
            return found;
    }
    return nullptr;
}

} // namespace

TEST_F(Deleting, AChildGoesAndComesBackInItsPlace)
{
    show("Separator { Cube { } DEF s Sphere { } Cone { } }");
    const std::string before = text();
    choose({1});
    manager.treeDeleteNode();
    EXPECT_EQ(rows(), "Separator\n Cube\n Cone\n");
    EXPECT_TRUE(manager.isModified());
    action(ActionId::Undo).trigger();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(rows(), "Separator\n Cube\n Sphere s\n Cone\n");
    action(ActionId::Redo).trigger();
    EXPECT_EQ(rows(), "Separator\n Cube\n Cone\n");
}

TEST_F(Deleting, TheRootLeavesAnEmptySceneAndComesBack)
{
    show("Separator { Cube { } }");
    const std::string before = text();
    choose({});
    manager.treeDeleteNode();
    EXPECT_EQ(selection->getNumChildren(), 0);
    EXPECT_EQ(view->topLevelItemCount(), 0);
    EXPECT_TRUE(action(ActionId::Undo).isEnabled()) << "the history stays";
    manager.undo();
    EXPECT_EQ(text(), before);
}

TEST_F(Deleting, TheCommandHoldsANodeThatNobodyElseHolds)
{
    SoSeparator* root = show("Separator { DEF shared Cube { } Group { USE shared } DEF alone Sphere { } }");
    SoNode* shared = root->getChild(0);
    SoNode* alone = root->getChild(2);
    manager.treeDeleteNode(row({0}));
    EXPECT_EQ(shared->getRefCount(), 1) << "only its other parent";
    manager.treeDeleteNode(row({1}));
    EXPECT_EQ(alone->getRefCount(), 1) << "only the command";
    manager.undo();
    manager.undo();
    EXPECT_EQ(alone->getRefCount(), 1);
    EXPECT_EQ(shared->getRefCount(), 2);
}

TEST_F(Deleting, WhatTheHostDestroysMeanwhileIsNotTouched)
{
    SoSeparator* root = show("Separator { Group { DEF shared Cube { } } Group { USE shared } }");
    manager.treeDeleteNode(row({0, 0}));
    group(root->getChild(1))->removeAllChildren(); // and with it the node
    manager.undo();
    EXPECT_EQ(rows(), "Separator\n Group\n Group\n");
    manager.redo();
    root->addChild(new SoCone);
    manager.treeDeleteNode(row({2}));
    selection->removeAllChildren(); // and with it the parent
    manager.undo();
    EXPECT_EQ(view->topLevelItemCount(), 0);
}

TEST_F(Deleting, NodesInFieldsGoAndComeBack)
{
    show("Separator { IndexedFaceSet { vertexProperty VertexProperty { materialBinding PER_FACE } } }");
    const std::string before = text();
    manager.treeDeleteNode(row({0, 0}));
    EXPECT_EQ(rows(), "Separator\n IndexedFaceSet\n");
    manager.undo();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(rows(), "Separator\n IndexedFaceSet\n  VertexProperty *\n");
}

TEST_F(Deleting, OneOfTheNodesInAFieldGoesAndComesBackInItsPlace)
{
    show("Separator { Rack { fields [ MFNode bins ] bins [ Cube { } NULL Sphere { } Cone { } ] } }");
    ASSERT_EQ(rows(), "Separator\n UnknownNode\n  Cube *\n  Sphere *\n  Cone *\n");
    const std::string before = text();
    const SoTreeViewItem* cone = row({0, 2});
    manager.treeDeleteNode(row({0, 1}));
    EXPECT_EQ(rows(), "Separator\n UnknownNode\n  Cube *\n  Cone *\n");
    EXPECT_EQ(row({0, 1}), cone) << "rows that are not concerned stay";
    manager.undo();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(rows(), "Separator\n UnknownNode\n  Cube *\n  Sphere *\n  Cone *\n");
    manager.redo();
    EXPECT_EQ(rows(), "Separator\n UnknownNode\n  Cube *\n  Cone *\n");
}

TEST_F(Deleting, PartsOfAKitGoAndComeBack)
{
    show("Separator { ShapeKit { shape Cone { } } }");
    const std::string before = text();
    SoTreeViewItem* cone = findRow(top(), "shape");
    ASSERT_TRUE(cone);
    manager.treeDeleteNode(cone);
    EXPECT_EQ(rows().find("Cone"), std::string::npos) << rows();
    manager.undo();
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(findRow(top(), "shape"));
}

TEST_F(Deleting, APartThatTheKitKeepsIsReported)
{
    show("Separator { ShapeKit { } }");
    SoTreeViewItem* part = findRow(top(), "topSeparator");
    ASSERT_TRUE(part);
    ModalAnswers answers;
    answers.expectBox("Nodescope Delete Node", "<i>\"topSeparator\"</i> part can't be deleted.", Ok, Ok);
    manager.treeDeleteNode(part);
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(Deleting, APartThatTheKitDoesNotTakeBackIsReported)
{
    SoSeparator* root = show("Separator { ShapeKit { } }");
    auto* kit = static_cast<SoShapeKit*>(root->getChild(0));
    ASSERT_TRUE(kit->setPart("callbackList[0]", new SoCallback));
    manager.treeDeleteNode(findRow(top(), "callbackList[0]"));
    auto* list = static_cast<SoNodeKitListPart*>(kit->getPart("callbackList", true));
    ASSERT_EQ(list->getNumChildren(), 0);
    list->childTypeNames.setValue("EventCallback"); // the host has changed its mind
    ModalAnswers answers;
    answers.expectBox("Nodescope Set Node", "Can't set callbackList[0].", Ok, Ok);
    manager.undo();
    EXPECT_EQ(list->getNumChildren(), 0);
}

TEST_F(Deleting, ItemsOfAListPartGoAndComeBackInTheirPlaces)
{
    auto* kit = new SoSeparatorKit;
    auto* root = new SoSeparator;
    root->addChild(kit);
    auto* list = static_cast<SoNodeKitListPart*>(kit->getPart("childList", true));
    for (const char* name : {"first", "second", "third"}) {
        auto* item = new SoShapeKit;
        item->setName(name);
        list->addChild(item);
    }
    show(root);
    const std::string before = text();
    manager.treeDeleteNode(findRow(top(), "childList[1]"));
    ASSERT_EQ(list->getNumChildren(), 2);
    EXPECT_EQ(list->getChild(1)->getName(), "third");
    manager.undo();
    EXPECT_EQ(text(), before);
}

TEST_F(Deleting, ItemsOfEachListPartComeBackInFrontOfTheOthers)
{
    SoSeparator* root = show("Separator { ShapeKit { } }");
    auto* kit = static_cast<SoShapeKit*>(root->getChild(0));
    ASSERT_TRUE(kit->setPart("callbackList[0]", new SoCallback));
    ASSERT_TRUE(kit->setPart("callbackList[1]", new SoEventCallback));
    const std::string before = text();
    manager.treeDeleteNode(findRow(top(), "callbackList[0]"));
    auto* list = static_cast<SoNodeKitListPart*>(kit->getPart("callbackList", true));
    EXPECT_EQ(list->getNumChildren(), 1);
    manager.undo();
    EXPECT_EQ(list->getNumChildren(), 2);
    EXPECT_EQ(text(), before);
}

TEST_F(Deleting, TheContainerOfAListPartStays)
{
    auto* list = new SoNodeKitListPart;
    list->addChild(new SoCube);
    auto* root = new SoSeparator;
    root->addChild(list);
    show(root);
    ModalAnswers answers;
    answers.expectBox("Nodescope Delete Node", "This SoNodeKitListPart container can't be deleted.", Ok, Ok);
    manager.treeDeleteNode(row({0, 0}));
    EXPECT_EQ(list->getNumChildren(), 1);
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(Deleting, WhatAFileHoldsStays)
{
    SoSeparator* root = show("Separator { File { } }");
    root->getChild(0)->getChildren()->append(new SoCube);
    {
        ModalAnswers answers;
        answers.expectBox("Nodescope Delete Node", "<i>Cube</i> can't be deleted.", Ok, Ok);
        manager.treeDeleteNode(row({0, 0}));
        EXPECT_FALSE(action(ActionId::Undo).isEnabled()) << "a refused deletion is no entry";
    }
    ModalAnswers answers;
    answers.expectBox("Nodescope Delete Node", "<i>Cube</i> can't be deleted.", Ok, Ok);
    choose({0, 0});
    manager.cutNode();
    EXPECT_TRUE(action(ActionId::Undo).isEnabled()) << "a refused cut is one";
    manager.undo();
    manager.redo();
    EXPECT_EQ(row({0})->childCount(), 1);
}

TEST_F(Deleting, WithoutARowNothingHappens)
{
    manager.treeDeleteNode();
    manager.cutNode();
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(Deleting, TheDeleteKeyAsksForIt)
{
    show("Separator { Cube { } }");
    choose({0});
    QTest::keyClick(view.get(), Qt::Key_Delete);
    EXPECT_EQ(rows(), "Separator\n");
    EXPECT_EQ(view->currentItem(), top());
}
