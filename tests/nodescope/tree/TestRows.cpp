#include "TreeFixture.h"

#include <nodescope/tree/RowList.h>

#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoWWWInline.h>

#include <QIcon>

namespace {

class Rows : public TreeTest {};

TEST_F(Rows, MirrorChildrenAndNodesInFields)
{
    show("Separator { DEF a Group { Cube { } } IndexedFaceSet { vertexProperty DEF vp VertexProperty { } } USE vp }");
    EXPECT_EQ(rows(), "Separator\n Group a\n  Cube\n IndexedFaceSet\n  VertexProperty vp *\n VertexProperty vp\n");
    EXPECT_TRUE(row({1, 0})->inFieldSubtree());
    EXPECT_TRUE(row({1, 0})->fromField());
    EXPECT_FALSE(row({2})->inFieldSubtree());
    EXPECT_EQ(row({1, 0})->node(), row({2})->node());
    EXPECT_EQ(row({1, 0})->parentNode(), row({1})->node());
    EXPECT_EQ(top()->parentNode(), nullptr);
    EXPECT_EQ(row({1, 0})->itemKind(), 1001);
}

TEST_F(Rows, NeverHoldTheirNodes)
{
    SoSeparator* root = show("Separator { Group { Cube { } } }");
    EXPECT_EQ(root->getRefCount(), 1);
    EXPECT_EQ(root->getChild(0)->getRefCount(), 1);
    EXPECT_EQ(row({0})->text(SoTreeViewItem::ReferenceCountColumn), "1");
}

TEST_F(Rows, MarkSharedNodesWithAnArrow)
{
    show("Separator { DEF a Cube { } Group { USE a } Sphere { } }");
    EXPECT_FALSE(row({0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
    EXPECT_FALSE(row({1, 0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
    EXPECT_TRUE(row({2})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
    row({0})->updateReferenceIcon(false);
    EXPECT_TRUE(row({0})->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
}

TEST_F(Rows, AnswerFontsAndColours)
{
    show("Separator { IndexedFaceSet { vertexProperty VertexProperty { } } }");
    EXPECT_EQ(row({0})->data(0, Qt::FontRole).value<QFont>(), view->style().typeFont());
    EXPECT_EQ(row({0, 0})->data(1, Qt::FontRole).value<QFont>(), view->style().fieldFont());
    EXPECT_EQ(row({0})->data(0, Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(row({0})->data(1, Qt::ForegroundRole).value<QColor>(), QColor(0, 128, 0));
    EXPECT_EQ(row({0})->data(2, Qt::ForegroundRole).value<QColor>(), QColor(Qt::blue));
    row({0})->setIgnored(true);
    EXPECT_EQ(row({0})->data(0, Qt::ForegroundRole).value<QColor>(), QColor(Qt::darkGray));
}

TEST_F(Rows, ShowNodekitPartsByName)
{
    show("Separator { ShapeKit { shape Cube { } } }");
    const SoTreeViewItem* kit = row({0});
    ASSERT_GT(kit->childCount(), 0);
    const SoTreeViewItem* topSeparator = nullptr;
    for (int i = 0; i < kit->childCount(); ++i) {
        const SoTreeViewItem* part = kit->childRow(i);
        EXPECT_TRUE(part->isPart());
        EXPECT_TRUE(static_cast<SoNode*>(part->kit()) == kit->node());
        EXPECT_GT(part->partNumber(), 0);
        EXPECT_EQ(part->parentPartName(), "this");
        if (part->partName() == "topSeparator")
            topSeparator = part;
    }
    ASSERT_TRUE(topSeparator);
    EXPECT_EQ(topSeparator->partRecord().kind(), NodekitPart::TopSeparator);
    EXPECT_FALSE(topSeparator->isPublicPart());
    EXPECT_NE(rows().find(" shape"), std::string::npos) << rows();
}

TEST_F(Rows, LeaveOutTheFirstChildOfAnInlineNode)
{
    auto* root = new SoSeparator;
    auto* inlined = new SoWWWInline;
    auto* content = new SoSeparator;
    content->setName("content");
    inlined->setChildData(content);
    root->addChild(inlined);
    show(root);
    EXPECT_EQ(rows(), "Separator\n WWWInline\n  Separator content\n");
}

TEST_F(Rows, EndWhereANodeStandsAboveItself)
{
    auto* root = new SoSeparator;
    auto* inner = new SoGroup;
    root->addChild(inner);
    inner->addChild(root);
    inner->addChild(new SoCube);
    show(root);
    EXPECT_EQ(rows(), "Separator\n Group\n  Separator\n  Cube\n");
    EXPECT_FALSE(row({0, 0})->hasPendingChildren());
    EXPECT_TRUE(top()->showsAncestorNode(row({0, 0})));
    inner->removeAllChildren();
}

TEST_F(Rows, AreMadeOnDemandWhenThereAreTooMany)
{
    SoGroup* group = new SoGroup;
    auto* root = new SoSeparator;
    root->addChild(group);
    for (int i = 0; i < 30; ++i) {
        auto* next = new SoGroup;
        group->addChild(next);
        group->addChild(next);
        group = next;
    }
    QString message;
    QObject::connect(view.get(), &SoNodescopeTreeView::statusMessage, [&](const QString& text) { message = text; });
    show(root);
    EXPECT_TRUE(view->isBuiltOnDemand());
    EXPECT_FALSE(message.isEmpty());
    EXPECT_EQ(row({0})->childCount(), 0);
    EXPECT_TRUE(row({0})->hasPendingChildren());
    row({0})->setExpanded(true);
    EXPECT_EQ(row({0})->childCount(), 2);
    EXPECT_FALSE(row({0})->hasPendingChildren());
    show("Separator { }");
    EXPECT_TRUE(message.isEmpty());
}

TEST_F(Rows, AreInsertedAtAPositionAndNumbered)
{
    SoSeparator* root = show("Separator { Cube { } Sphere { } Cone { } }");
    auto* node = new SoCube;
    node->ref();
    SoTreeViewItem* first = view->createItem(node, top(), nullptr, 0);
    EXPECT_EQ(top()->childRow(0), first);
    EXPECT_EQ(first->data(0, Qt::UserRole).toInt(), 0);
    EXPECT_EQ(row({1})->storedIndex(), 1);
    SoTreeViewItem* last = view->createItem(node, top(), nullptr, -1);
    EXPECT_EQ(top()->childRow(4), last);
    EXPECT_EQ(last->storedIndex(), 4);

    row({1})->setCounted(false);
    EXPECT_EQ(row({1})->data(0, Qt::UserRole).toInt(), -1);
    EXPECT_EQ(row({2})->storedIndex(), 1);
    EXPECT_EQ(last->storedIndex(), 3);
    EXPECT_EQ(top()->countedChild(2), row({2}));
    EXPECT_EQ(view->createItem(nullptr, top(), nullptr, 0), nullptr);
    top()->deleteChildren(false);
    EXPECT_EQ(top()->childCount(), 0);
    node->unref();
    EXPECT_EQ(root->getNumChildren(), 3);
}

TEST_F(Rows, AreFoundAndWalkedAmongTheirSiblings)
{
    SoSeparator* root = show("Separator { Cube { } Sphere { } Cone { } }");
    bool ignored = true;
    EXPECT_EQ(top()->findChild(root->getChild(1), nullptr, 1, ignored), row({1}));
    EXPECT_FALSE(ignored);
    EXPECT_EQ(top()->findChild(root->getChild(1), nullptr, 0, ignored), nullptr);
    EXPECT_EQ(top()->findChild(root->getChild(2), nullptr, -1, ignored), row({2}));
    EXPECT_EQ(top()->firstChild(), row({0}));
    EXPECT_EQ(row({0})->nextSibling(), row({1}));
    EXPECT_EQ(row({2})->nextSibling(), nullptr);
    EXPECT_EQ(row({2})->previousSibling(), row({1}));
    EXPECT_EQ(row({0})->previousSibling(), nullptr);
    EXPECT_LT(SoTreeViewItem::compareSiblingOrder(row({0}), row({2})), 0);
    EXPECT_GT(SoTreeViewItem::compareSiblingOrder(row({2}), row({1})), 0);
    EXPECT_EQ(SoTreeViewItem::compareSiblingOrder(top(), row({1})), 0);
    EXPECT_EQ(row({1})->ancestorPath(), (QList<SoTreeViewItem*>{top(), row({1})}));
}

TEST_F(Rows, AreRegisteredByTheirNode)
{
    SoSeparator* root = show("Separator { DEF a Cube { } Group { USE a } }");
    SoNode* cube = root->getChild(0);
    NodeRowRegistry& registry = view->rowRegistry();
    EXPECT_EQ(registry.rows(cube), (QList<SoTreeViewItem*>{row({0}), row({1, 0})}));
    EXPECT_EQ(registry.rows(NodeRowRegistry::key(cube)).size(), 2);
    EXPECT_EQ(registry.sharedNodes().size(), 1);
    row({1})->removeChildAt(5);
    SoTreeViewItem* second = row({1, 0});
    row({1})->removeChildAt(0);
    EXPECT_EQ(registry.rows(cube).size(), 1);
    row({1})->addChild(second);
    EXPECT_EQ(registry.rows(cube).size(), 2);
    delete second;
    EXPECT_EQ(registry.rows(cube).size(), 1);
    show("Group { }");
    EXPECT_TRUE(registry.rows(cube).isEmpty());
}

} // namespace
