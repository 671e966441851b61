#include "TreeFixture.h"

#include <nodescope/tree/NodeSearch.h>

#include <vexel/nodekits/SoAppearanceKit.h>
#include <vexel/nodes/SoCone.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>

#include <random>

using namespace NodeSearch;

namespace {

const char Scene[] = "Separator { DEF a Material { } Group { Cube { } USE a } PerspectiveCamera { } DEF s Separator { "
                     "USE a Sphere { } } DEF Grün_and_very_LONG_after_all_____________________________________________"
                     "_____________________________________________________________________________ Cone { } }";

class Find : public TreeTest {
protected:
    SoTreeViewItem* from(SoTreeViewItem* current, int column, const QString& text, int flags = 0)
    {
        view->setCurrentItem(current);
        return view->find(column, text, flags);
    }
    static QString address(const SoTreeViewItem* row)
    {
        return "0x" + QString::number(reinterpret_cast<quintptr>(row->node()), 16);
    }
};

} // namespace

TEST_F(Find, ByTypeFindsEachTypeThatContainsTheWord)
{
    show(Scene);
    EXPECT_EQ(from(row({0}), ByType, "separator"), row({3}));
    EXPECT_EQ(from(row({3}), ByType, "PARA"), top());
    EXPECT_EQ(from(top(), ByType, "c"), row({1, 0})) << "Cube, behind the Material and the Group";
    EXPECT_EQ(from(top(), ByType, "separator", CaseSensitive), nullptr);
    EXPECT_EQ(from(top(), ByType, "Separator", CaseSensitive), row({3}));
    EXPECT_EQ(from(top(), ByType, "Separato", ExactMatch), nullptr);
    EXPECT_EQ(from(top(), ByType, "sePARator", ExactMatch), row({3})) << "exact, but in any case";
    EXPECT_EQ(from(top(), ByType, "sePARator", ExactMatch | CaseSensitive), nullptr);
    EXPECT_EQ(from(top(), ByType, "Torus"), nullptr);
}

TEST_F(Find, ByNameComparesTheNamesOfNodes)
{
    show(Scene);
    EXPECT_EQ(from(top(), ByName, "S", ExactMatch), row({3}));
    EXPECT_EQ(from(top(), ByName, "GRÜN"), row({4})) << "letters beyond ASCII have a lower case, too";
    EXPECT_EQ(from(top(), ByName, "and_very_long"), row({4}));
    EXPECT_EQ(from(top(), ByName, "Grün", CaseSensitive), row({4}));
    EXPECT_EQ(from(top(), ByName, "grün", CaseSensitive), nullptr);
}

TEST_F(Find, ByNameComparesTheNamesOfNodekitParts)
{
    auto* kit = new SoAppearanceKit;
    auto* material = new SoMaterial;
    material->setName("steel");
    kit->setPart("material", material);
    show(kit);
    SoTreeViewItem* part = from(top(), ByName, "MATERIAL", ExactMatch);
    ASSERT_TRUE(part);
    EXPECT_EQ(part->node(), material);
    EXPECT_EQ(from(top(), ByName, "steel"), nullptr) << "the row shows the name of the part";
}

TEST_F(Find, AnEmptyTextFindsNothingUnlessTheKeyShallBeEmpty)
{
    show(Scene);
    for (const int column : {0, 1, 2, 3, 4})
        EXPECT_EQ(from(top(), column, ""), nullptr);
    EXPECT_EQ(from(row({2}), ByName, "", ExactMatch), row({3, 1})) << "the next row without a name";
    EXPECT_EQ(from(top(), ByType, "", ExactMatch), nullptr);
    EXPECT_EQ(from(top(), 4, "", ExactMatch), row({0})) << "a column that there is not is empty everywhere";
}

TEST_F(Find, ByAddressFindsEachRowOfASharedNodeInTurn)
{
    show(Scene);
    const QString shared = address(row({0}));
    EXPECT_EQ(from(top(), ByAddress, shared), row({0}));
    EXPECT_EQ(from(row({0}), ByAddress, shared), row({1, 1}));
    EXPECT_EQ(from(row({1, 1}), ByAddress, shared, ExactMatch), row({3, 0}));
    EXPECT_EQ(from(row({3, 0}), ByAddress, shared), row({0}));
    EXPECT_EQ(from(row({0}), ByAddress, shared.toUpper()), row({1, 1}));
    EXPECT_EQ(from(row({0}), ByAddress, shared.toUpper(), CaseSensitive), nullptr);
    EXPECT_EQ(from(row({0}), ByAddress, shared.mid(2), ExactMatch), nullptr) << "the key begins with 0x";
}

TEST_F(Find, ByIdComparesTheDecimalNumber)
{
    show(Scene);
    const QString id = QString::number(row({3, 1})->node()->getNodeId());
    EXPECT_EQ(from(top(), ById, id, ExactMatch), row({3, 1}));
    EXPECT_EQ(from(top(), ById, "0x" + id), nullptr);
}

TEST_F(Find, GoesRoundBothWays)
{
    show(Scene);
    EXPECT_EQ(from(top(), ByType, "e", Backward), row({4})) << "before the first row stands the last one of the tree";
    EXPECT_EQ(from(row({4}), ByType, "separator"), top());
    EXPECT_EQ(from(row({1}), ByType, "material", Backward), row({0}));
    EXPECT_EQ(from(row({0}), ByType, "material", Backward), row({3, 0}));
    for (const int flags : {0, int(Backward)})
        EXPECT_EQ(from(row({3, 1}), ByType, "sphere", flags), row({3, 1})) << "the current row comes last";
}

TEST_F(Find, WithoutACurrentRowItBeginsAtTheEndItComesFrom)
{
    show(Scene);
    EXPECT_EQ(from(nullptr, ByType, "e"), row({0})) << "one step behind the first row";
    EXPECT_EQ(from(nullptr, ByType, "separator", ExactMatch), row({3}));
    EXPECT_EQ(from(nullptr, ByType, "e", Backward), row({3, 1})) << "one step before the last row";
    EXPECT_EQ(from(nullptr, ByType, "cone", Backward), row({4}));
    view->reset(nullptr);
    EXPECT_EQ(view->find(ByType, "e", 0), nullptr);
}

TEST_F(Find, FindsHiddenRowsAndLeavesTheTreeAsItIs)
{
    show(Scene);
    view->setFilter(Nsc::All_categories & ~Nsc::Shape);
    EXPECT_EQ(from(top(), ByType, "cube"), row({1, 0}));
    EXPECT_TRUE(row({1, 0})->isHidden());
    EXPECT_FALSE(row({1})->isExpanded());
    EXPECT_EQ(view->currentRow(), top());
}

// Every row of random trees, from every row, against the plain walk over the list of all rows.
TEST_F(Find, VisitsTheRowsInTheOrderOfTheTree)
{
    std::mt19937 random(7);
    auto* root = new SoSeparator;
    std::vector<SoGroup*> groups{root};
    for (int i = 0; i < 60; ++i) {
        SoGroup* parent = groups[random() % groups.size()];
        SoNode* child = random() % 2 ? static_cast<SoNode*>(new SoGroup) : new SoCube;
        parent->addChild(child);
        if (child->isOfType(SoGroup::getClassTypeId()))
            groups.push_back(static_cast<SoGroup*>(child));
    }
    show(root);
    QList<SoTreeViewItem*> all;
    for (QTreeWidgetItemIterator each(view.get()); *each; ++each)
        all.append(static_cast<SoTreeViewItem*>(*each));
    for (int flags : {0, int(Backward)}) {
        for (int i = 0; i < all.size(); ++i) {
            int wanted = i;
            do
                wanted = (wanted + (flags ? all.size() - 1 : 1)) % all.size();
            while (all[wanted]->text(0) != "Cube");
            EXPECT_EQ(from(all[i], ByType, "cube", flags), all[wanted]) << i;
        }
    }
}

namespace {

/** A graph of 2^depth rows: each group holds the next one twice. */
SoGroup* makeDiamonds(int depth, SoNode* bottom)
{
    auto* group = new SoGroup;
    if (depth == 0) {
        group->addChild(bottom);
        return group;
    }
    SoGroup* below = makeDiamonds(depth - 1, bottom);
    group->addChild(below);
    group->addChild(below);
    return group;
}

int depthOf(const SoTreeViewItem* row)
{
    return row->ancestorPath().size() - 1;
}

} // namespace

TEST_F(Find, MakesRowsOnlyOnTheWayToAMatch)
{
    auto* cone = new SoCone;
    auto* root = new SoSeparator;
    root->addChild(makeDiamonds(30, new SoCube));
    auto* last = new SoGroup;
    last->addChild(makeDiamonds(30, cone));
    root->addChild(last);
    show(root);
    ASSERT_TRUE(view->isBuiltOnDemand());
    EXPECT_EQ(view->find(ByType, "torus", 0), nullptr);
    EXPECT_TRUE(row({0})->hasPendingChildren()) << "nothing to be found below";

    SoTreeViewItem* found = view->find(ByType, "cone", 0);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->node(), cone);
    EXPECT_EQ(depthOf(found), 33);
    EXPECT_TRUE(row({0})->hasPendingChildren());
    SoTreeViewItem* next = from(found, ByAddress, address(found));
    ASSERT_TRUE(next);
    EXPECT_NE(next, found) << "the same node in its second place";
    EXPECT_EQ(next->node(), cone);
    EXPECT_EQ(from(next, ByType, "cone", Backward), found);

    const SoTreeViewItem* lastCube = from(found->parentRow()->parentRow(), ByType, "cube", Backward);
    ASSERT_TRUE(lastCube);
    EXPECT_EQ(depthOf(lastCube), 32);
    EXPECT_EQ(from(top(), ByType, "cone", Backward)->node(), cone);
}

TEST_F(Find, MakesRowsForNamesOfParts)
{
    auto* kit = new SoAppearanceKit;
    kit->setPart("material", new SoMaterial);
    show(makeDiamonds(24, kit));
    ASSERT_TRUE(view->isBuiltOnDemand());
    const SoTreeViewItem* part = view->find(ByName, "material", ExactMatch);
    ASSERT_TRUE(part);
    EXPECT_TRUE(part->isPart());
    EXPECT_EQ(depthOf(part), 26);
}

TEST_F(Find, AGraphThatContainsItselfIsSearchedOnce)
{
    auto* root = new SoGroup;
    auto* below = new SoSeparator;
    root->addChild(below);
    below->addChild(root);
    root->addChild(makeDiamonds(24, new SoCube));
    show(root);
    EXPECT_EQ(view->find(ByType, "torus", 0), nullptr);
    ASSERT_TRUE(view->find(ByType, "cube", 0));
    view->reset(nullptr);
    below->removeAllChildren();
}

TEST_F(Find, SurvivesAGraphThatChangesBetweenTwoFinds)
{
    show(Scene);
    view->setCurrentItem(view->find(ByType, "sphere", 0));
    show("Separator { Cube { } Sphere { } }");
    EXPECT_EQ(view->find(ByType, "sphere", 0), row({1}));
    view->setCurrentItem(row({1}));
    static_cast<SoGroup*>(top()->node())->removeChild(1);
    view->buildChildren(top());
    EXPECT_EQ(view->find(ByType, "sphere", 0), nullptr);
    EXPECT_EQ(view->find(ByType, "cube", 0), row({0}));
}
