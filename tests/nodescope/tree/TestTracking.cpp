#include "TreeFixture.h"

#include <nodescope/tree/SoGraphTopologyManager.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoSeparatorKit.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoCone.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoIndexedFaceSet.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSphere.h>
#include <vexel/nodes/SoVertexProperty.h>

#include <QSignalSpy>

namespace {

class Tracking : public TreeTest {
protected:
    static SoGroup* group(SoNode* node) { return static_cast<SoGroup*>(node); }
    /** The rows as a view of its own builds them from the graph. */
    std::string rowsBuiltAnew()
    {
        const std::string present = rows();
        SoNode* scene = selection->getChild(0);
        scene->ref();
        view->reset(scene);
        scene->unrefNoDelete();
        const std::string anew = rows();
        EXPECT_EQ(present, anew);
        return anew;
    }
};

} // namespace

TEST_F(Tracking, AChildAddedToASharedGroupAppearsInEachPlace)
{
    SoSeparator* root = show("Separator { DEF g Group { Cube { } } Separator { USE g } Separator { USE g } }");
    group(root->getChild(0))->addChild(new SoSphere);
    EXPECT_EQ(rows(), "Separator\n Group g\n  Cube\n  Sphere\n Separator\n  Group g\n   Cube\n   Sphere\n"
                      " Separator\n  Group g\n   Cube\n   Sphere\n");
}

TEST_F(Tracking, ARowThatShowsTheNewChildAlreadyIsLeftAlone)
{
    SoSeparator* root = show("Separator { Group { Cube { } } }");
    auto* cone = new SoCone;
    group(root->getChild(0))->addChild(cone);
    view->topologyManager().insertRows(cone, root->getChild(0), -1, nullptr);
    EXPECT_EQ(row({0})->childCount(), 2);
}

TEST_F(Tracking, ANodeAddedTwiceIsTwoRows)
{
    SoSeparator* root = show("Separator { }");
    auto* cube = new SoCube;
    root->addChild(cube);
    root->addChild(cube);
    EXPECT_EQ(rows(), "Separator\n Cube\n Cube\n");
}

TEST_F(Tracking, InsertedAndReplacedChildrenStandInTheirPlaces)
{
    SoSeparator* root = show("Separator { Group { Cube { } Sphere { } } }");
    SoGroup* const inner = group(root->getChild(0));
    const SoTreeViewItem* sphere = row({0, 1});
    inner->insertChild(new SoCone, 1);
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n  Cone\n  Sphere\n");
    EXPECT_EQ(row({0, 2}), sphere) << "rows that are not concerned stay";
    EXPECT_EQ(sphere->storedIndex(), 2);
    inner->replaceChild(1, new SoSeparator);
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n  Separator\n  Sphere\n");
    inner->insertChild(new SoCone, 0);
    EXPECT_EQ(rows(), "Separator\n Group\n  Cone\n  Cube\n  Separator\n  Sphere\n");
}

TEST_F(Tracking, RemovedChildrenGoAndTheGroupStays)
{
    SoSeparator* root = show("Separator { Group { Cube { } Sphere { } Cone { } } }");
    SoGroup* const inner = group(root->getChild(0));
    const SoTreeViewItem* innerRow = row({0});
    inner->removeChild(1);
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n  Cone\n");
    inner->removeAllChildren();
    EXPECT_EQ(rows(), "Separator\n Group\n");
    EXPECT_EQ(row({0}), innerRow);
}

TEST_F(Tracking, TheSceneGoesWithTheChildrenOfTheRoot)
{
    show("Separator { Cube { } }");
    selection->removeAllChildren();
    EXPECT_EQ(view->topLevelItemCount(), 0);
    selection->addChild(new SoCone);
    EXPECT_EQ(rows(), "Cone\n");
    selection->replaceChild(0, new SoCube);
    EXPECT_EQ(rows(), "Cube\n");
    selection->removeChild(0);
    EXPECT_EQ(view->topLevelItemCount(), 0);
}

TEST_F(Tracking, PartsOfAKitAppearAndGo)
{
    auto* kit = new SoShapeKit;
    auto* root = new SoSeparator;
    root->addChild(kit);
    show(root);
    kit->setPart("shape", new SoCone);
    EXPECT_NE(rowsBuiltAnew().find("Cone shape"), std::string::npos);
    kit->setPart("shape", nullptr);
    kit->getPart("appearance.material", true);
    EXPECT_NE(rowsBuiltAnew().find("Material"), std::string::npos);
}

TEST_F(Tracking, ItemsOfAListPartAreRenamedByTheirPlaces)
{
    auto* kit = new SoSeparatorKit;
    auto* root = new SoSeparator;
    root->addChild(kit);
    show(root);
    auto* list = static_cast<SoNodeKitListPart*>(kit->getPart("childList", true));
    list->addChild(new SoShapeKit);
    list->insertChild(new SoSeparatorKit, 0);
    const std::string text = rowsBuiltAnew();
    EXPECT_NE(text.find("SeparatorKit childList[0]"), std::string::npos) << text;
    EXPECT_NE(text.find("ShapeKit childList[1]"), std::string::npos) << text;
}

TEST_F(Tracking, NodesInFieldsAreFollowed)
{
    auto* faces = new SoIndexedFaceSet;
    auto* root = new SoSeparator;
    root->addChild(faces);
    show(root);
    faces->vertexProperty = new SoVertexProperty;
    EXPECT_EQ(rows(), "Separator\n IndexedFaceSet\n  VertexProperty *\n");
    faces->vertexProperty = nullptr;
    EXPECT_EQ(rows(), "Separator\n IndexedFaceSet\n");
}

TEST_F(Tracking, ChangesOfManyValuesChangeNoRows)
{
    SoSeparator* root = show("Separator { Coordinate3 { } Cube { } }");
    const SoTreeViewItem* second = row({1});
    auto* coordinates = static_cast<SoCoordinate3*>(root->getChild(0));
    const SbVec3f points[] = {SbVec3f(0, 0, 0), SbVec3f(1, 0, 0)};
    coordinates->point.setValues(points, 2);
    EXPECT_EQ(row({1}), second);
    EXPECT_EQ(rows(), "Separator\n Coordinate3\n Cube\n");
}

TEST_F(Tracking, AFileNodeIsReloadedByANotificationWithoutAField)
{
    SoSeparator* root = show("Separator { File { } }");
    auto* file = static_cast<SoFile*>(root->getChild(0));
    file->getChildren()->append(new SoCube);
    const SoTreeViewItem* contents = row({0, 0});
    QSignalSpy reloads(&view->topologyManager(), &SoGraphTopologyManager::fileRowsReloaded);
    file->name.touch();
    EXPECT_EQ(reloads.count(), 0);
    file->getChildren()->append(new SoCube);
    contents = row({0, 0});
    contents->storedIndex();
    file->touch();
    EXPECT_EQ(reloads.count(), 1);
    EXPECT_EQ(row({0})->childCount(), file->getChildren()->getLength());
}

TEST_F(Tracking, AnInlineNodeMayLoseTheChildThatMakesNoRow)
{
    SoSeparator* root = show("Separator { WWWInline { } }");
    SoChildList& children = *root->getChild(0)->getChildren();
    children.append(new SoCube);
    children.append(new SoSphere);
    EXPECT_EQ(rows(), "Separator\n WWWInline\n  Cube\n  Sphere\n");
    children.remove(0);
    EXPECT_EQ(rows(), "Separator\n WWWInline\n  Sphere\n");
    children.insert(new SoCone, 0);
    EXPECT_EQ(rows(), "Separator\n WWWInline\n  Cube\n  Sphere\n");
}

TEST_F(Tracking, TheRowAboveBecomesCurrentWhenTheCurrentOneGoes)
{
    SoSeparator* root = show("Separator { Group { Cube { } Sphere { } } }");
    view->setCurrentItem(row({0, 0}));
    QSignalSpy selections(view.get(), &SoNodescopeTreeView::rowSelected);
    group(root->getChild(0))->removeChild(0);
    EXPECT_EQ(view->currentItem(), row({0}));
    EXPECT_EQ(selections.count(), 1);
    view->setCurrentItem(row({0, 0}));
    root->removeAllChildren();
    EXPECT_EQ(view->currentItem(), top());
}

TEST_F(Tracking, AGraphThatContainsItselfStaysFinite)
{
    SoSeparator* root = show("Separator { Group { } Cube { } }");
    SoGroup* const inner = group(root->getChild(0));
    inner->addChild(root);
    EXPECT_EQ(rows(), "Separator\n Group\n  Separator\n Cube\n");
    root->addChild(new SoCone);
    EXPECT_EQ(rows(), "Separator\n Group\n  Separator\n Cube\n Cone\n");
    inner->removeAllChildren();
    EXPECT_EQ(rows(), "Separator\n Group\n Cube\n Cone\n");
}

TEST_F(Tracking, NewRowsObeyTheFilter)
{
    SoSeparator* root = show("Separator { }");
    view->setFilter(Nsc::All_categories & ~Nsc::Shape);
    root->addChild(new SoCube);
    EXPECT_TRUE(row({0})->isHidden());
    view->setFilter(Nsc::All_categories);
    EXPECT_FALSE(row({0})->isHidden());
}

TEST_F(Tracking, TheArrowOfASharedNodeComesAndGoes)
{
    SoSeparator* root = show("Separator { Cube { } Group { } }");
    EXPECT_TRUE(row({0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
    group(root->getChild(1))->addChild(root->getChild(0));
    EXPECT_FALSE(row({0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
    EXPECT_FALSE(row({1, 0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
    group(root->getChild(1))->removeChild(0);
    EXPECT_TRUE(row({0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
}

TEST_F(Tracking, ASelectedNodeIsNotSharedForThat)
{
    show("Separator { Cube { } }");
    view->setCurrentItem(row({0}));
    ASSERT_GE(row({0})->referenceCount(), 2);
    EXPECT_TRUE(row({0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
}

TEST_F(Tracking, AMovedNodeKeepsWhatTheUserOpenedAndMarked)
{
    SoSeparator* root = show("Separator { Group { Group { Cube { } } } Separator { } }");
    SoNode* const moved = group(root->getChild(0))->getChild(0);
    row({0})->setExpanded(true);
    row({0, 0})->setExpanded(true);
    row({0, 0, 0})->setBookmarked(true);
    view->setCurrentItem(row({0, 0, 0}));
    {
        const SoGraphTopologyManager::Move move(view->topologyManager(), moved);
        moved->ref();
        group(root->getChild(0))->removeChild(0);
        group(root->getChild(1))->addChild(moved);
        moved->unrefNoDelete();
    }
    EXPECT_TRUE(row({1, 0})->isExpanded());
    EXPECT_TRUE(row({1, 0, 0})->isBookmarked());
    EXPECT_EQ(view->currentItem(), row({1, 0, 0}));
}

TEST_F(Tracking, ManyChangesInOneTurnLeaveTheRowsRight)
{
    SoSeparator* root = show("Separator { Group { } }");
    SoGroup* const inner = group(root->getChild(0));
    view->show();
    view->expandAll();
    for (int i = 0; i < 10000; ++i) {
        if (i % 3 == 2)
            inner->removeChild(i % inner->getNumChildren());
        else
            inner->insertChild(new SoCube, i % (inner->getNumChildren() + 1));
    }
    ASSERT_EQ(row({0})->childCount(), inner->getNumChildren());
    for (int i = 0; i < inner->getNumChildren(); ++i)
        ASSERT_EQ(row({0, i})->node(), inner->getChild(i)) << i;
}
