#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoFieldWatch.h>
#include <nodescope/panels/SoNodeOverview.h>
#include <nodescope/panels/SoNodeOverviewList.h>
#include <nodescope/panels/SoNodescopeEdition.h>
#include <nodescope/panels/SoTabNodeOverview.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <tests/nodescope/entry/InspectionFixture.h>
#include <vexel/base/SoPath.h>
#include <vexel/fields/SoField.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSelection.h>

#include <QDockWidget>
#include <QLineEdit>
#include <QSettings>

namespace {

/** An inspection of a material and a cube, which notes what the panels tell each other, in its order. */
class SelectionTest : public InspectionTest {
protected:
    void SetUp() override
    {
        QSettings("Nodescope", "Nodescope").clear();
        m_root->setName("root");
        m_root->addChild(m_cube);
        _startNode(m_root, nullptr);
        ASSERT_EQ(view().topLevelItemCount(), 1);
        QObject::connect(&services(), &NscServices::selectedNodeChanged,
                         [this](SoFieldContainer* node) { note("node", node ? typeOf(*node) : "none"); });
        QObject::connect(&services(), &NscServices::selectedFieldChanged, [this](SoField* field) {
            note("field", field ? field->getName().toQString() : QStringLiteral("none"));
        });
        QObject::connect(&view(), &QTreeWidget::currentItemChanged, [this](QTreeWidgetItem* row) {
            note("row", row ? row->text(SoTreeViewItem::TypeColumn) : QStringLiteral("none"));
        });
        QObject::connect(&overview(), &QTabWidget::currentChanged,
                         [this](int index) { note("tab", QString::number(index)); });
    }

    static QString typeOf(const SoFieldContainer& container) { return container.getTypeId().getName().toQString(); }
    void note(const char* what, const QString& which) { m_notes << QString("%1 %2").arg(what, which); }
    /** What was told since the last call. */
    QString notes()
    {
        const QString text = m_notes.join(", ");
        m_notes.clear();
        return text;
    }

    static NscServicesImpl& services() { return *NscServicesImpl::getInstance(); }
    static SoCommandManager& manager() { return *services().getCommandManager(); }
    static SoNodescopeTreeView& view() { return *SoNodescopeViewer::getInstance()->treeView(); }
    static SoTabNodeOverview& overview() { return manager().getNodeEdition()->overview(); }
    static SoNodeOverviewList& list() { return overview().currentPage()->list(); }
    static SoFieldContainer* shown() { return overview().currentPage()->container(); }
    static SoTreeViewItem* row(int child) { return static_cast<SoTreeViewItem*>(view().topLevelItem(0)->child(child)); }
    /** The node that is marked in the 3D view. */
    static SoNode* marked()
    {
        const SoSelection* selection = services().getSelection();
        return selection->getNumSelected() ? selection->getPath(0)->getTail() : nullptr;
    }
    void expectAllAt(const SoFieldContainer* node)
    {
        EXPECT_EQ(services().getSelectedNode(), node);
        EXPECT_EQ(shown(), node);
        ASSERT_TRUE(view().currentRow());
        EXPECT_EQ(view().currentRow()->node(), node);
        ASSERT_TRUE(list().currentRow());
        EXPECT_EQ(services().getSelectedField(), &list().currentRow()->field());
    }

    SoCube* m_cube = new SoCube;
    QStringList m_notes;
};

} // namespace

TEST_F(SelectionTest, StartsAtTheRoot)
{
    expectAllAt(m_root);
    EXPECT_EQ(overview().count(), 1);
    EXPECT_EQ(overview().tabText(0), "Separator");
}

TEST_F(SelectionTest, ARowOfTheTreeTellsEachPanelOnce)
{
    view().setCurrentItem(row(0));
    EXPECT_EQ(notes(), "node Material, field ambientColor, row Material");
    expectAllAt(row(0)->node());
    EXPECT_EQ(marked(), row(0)->node());
    view().setCurrentItem(row(1));
    EXPECT_EQ(notes(), "node Cube, field width, row Cube");
    expectAllAt(m_cube);
    EXPECT_EQ(marked(), m_cube);
    EXPECT_EQ(overview().count(), 1);
}

TEST_F(SelectionTest, AClickWithShiftOpensATab)
{
    frame().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame()));
    const auto click = [](SoTreeViewItem* item, Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, view().visualItemRect(item).center());
    };
    click(row(0), Qt::NoModifier);
    EXPECT_EQ(overview().count(), 1);
    click(row(1), Qt::ShiftModifier);
    EXPECT_EQ(notes(), "node Material, field ambientColor, row Material, node Cube, field width, row Cube");
    ASSERT_EQ(overview().count(), 2);
    EXPECT_EQ(overview().currentIndex(), 1);
    EXPECT_EQ(overview().tabText(0), "Material");
    EXPECT_EQ(overview().tabText(1), "Cube");
    EXPECT_EQ(manager().getItemOverviewList(), (QList<SoTreeViewItem*>{row(0), row(1)}));
    expectAllAt(m_cube);
}

TEST_F(SelectionTest, TheTreeFollowsTheTab)
{
    view().setCurrentItem(row(0));
    manager().setNodeOverview(row(1));
    expectAllAt(m_cube);
    EXPECT_EQ(marked(), m_cube);
    notes();
    overview().setCurrentIndex(0);
    EXPECT_EQ(notes(), "row Material, node Material, field ambientColor, tab 0");
    expectAllAt(row(0)->node());
    EXPECT_EQ(marked(), row(0)->node());
    manager().closeNodeOverview(0);
    EXPECT_EQ(overview().count(), 1);
    expectAllAt(m_cube);
    EXPECT_EQ(marked(), m_cube);
    EXPECT_EQ(manager().getItemOverviewList(), QList<SoTreeViewItem*>{row(1)});
}

TEST_F(SelectionTest, AnExtensionSelectsANode)
{
    services().setSelectedNode(m_cube);
    EXPECT_EQ(notes(), "row Cube, node Cube, field width");
    expectAllAt(m_cube);
    EXPECT_EQ(marked(), m_cube);
    services().setSelectedNode(m_cube);
    EXPECT_EQ(notes(), "node Cube");
}

TEST_F(SelectionTest, AnExtensionSelectsAField)
{
    view().setCurrentItem(row(1));
    notes();
    services().setSelectedField(&m_cube->depth);
    EXPECT_EQ(notes(), "field depth");
    EXPECT_EQ(&list().currentRow()->field(), &m_cube->depth);
}

TEST_F(SelectionTest, ARowOfTheFieldListSelectsItsField)
{
    view().setCurrentItem(row(1));
    notes();
    list().setCurrentItem(list().findRow(&m_cube->height));
    EXPECT_EQ(notes(), "field height");
    EXPECT_EQ(services().getSelectedField(), &m_cube->height);
}

TEST_F(SelectionTest, APickInThe3DViewGoesTheWayOfARow)
{
    auto* const path = new SoPath(m_root);
    path->ref();
    path->append(m_cube);
    view().selectPickedPath(*path);
    path->unref();
    EXPECT_EQ(notes(), "node Cube, field width, row Cube");
    expectAllAt(m_cube);
    EXPECT_EQ(marked(), m_cube);
}

TEST_F(SelectionTest, NothingThatTheHostDestroysStaysSelected)
{
    view().setCurrentItem(row(1));
    manager().setNodeOverview(row(0)); // the cube stands on the first tab only
    services().setSelectedField(&m_cube->width);
    m_root->removeChild(m_cube);
    EXPECT_EQ(services().getSelectedField(), nullptr);
    EXPECT_EQ(overview().page(0)->container(), nullptr);
    EXPECT_EQ(overview().page(0)->list().topLevelItemCount(), 0);
    EXPECT_EQ(manager().getItemOverviewList().first(), nullptr);
    overview().setCurrentIndex(0);
    manager().highlightNodeItem();
    m_root->removeAllChildren();
    EXPECT_NE(services().getSelectedNode(), nullptr); // the tree went to the row that is left
    expectAllAt(m_root);
}

TEST_F(SelectionTest, ANodeThatComesBackIsFoundByItsNewRow)
{
    m_cube->ref();
    view().setCurrentItem(row(1));
    manager().setNodeOverview(row(0));
    m_root->removeChild(m_cube);
    m_root->addChild(m_cube);
    EXPECT_EQ(manager().getItemOverviewList().first(), nullptr);
    overview().setCurrentIndex(0);
    EXPECT_EQ(view().currentRow(), row(1));
    expectAllAt(m_cube);
    m_cube->unref();
}

TEST_F(SelectionTest, ANewSceneLeavesOneTab)
{
    manager().setNodeOverview(row(0));
    manager().setNodeOverview(row(1));
    EXPECT_EQ(overview().count(), 3);
    auto* scene = new SoCube;
    manager().setScene(scene);
    EXPECT_EQ(overview().count(), 1);
    EXPECT_EQ(shown(), scene);
    expectAllAt(scene);
}

TEST_F(SelectionTest, TheOverrideFlagIsThatOfTheNodeOnTheTab)
{
    view().setCurrentItem(row(1));
    manager().nodeSetOverride(true);
    EXPECT_TRUE(m_cube->isOverride());
    manager().undo();
    EXPECT_FALSE(m_cube->isOverride());
}

TEST_F(SelectionTest, ShowingARowBringsTheDocksBack)
{
    frame().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame()));
    auto* dock = frame().findChild<QDockWidget*>("dockNodeOverview");
    ASSERT_TRUE(dock);
    dock->hide();
    manager().setNodeOverview(); // the current row
    EXPECT_TRUE(dock->isVisible());
    EXPECT_TRUE(frame().findChild<QDockWidget*>("dockFieldWatch")->isVisible());
    EXPECT_EQ(overview().count(), 2);
    EXPECT_EQ(shown(), m_root);
}

TEST_F(SelectionTest, TheInspectionMayStopWithTheHostsNodesShown)
{
    manager().setNodeOverview(row(1));
    _stop();
    m_root->removeAllChildren();
}

TEST_F(SelectionTest, APartOfAKitIsShownAsSuch)
{
    auto* const kit = new SoShapeKit;
    SoNode* const shape = kit->getPart("shape", true);
    m_root->addChild(kit);
    view().setCurrentItem(row(2));
    view().expandBelow(row(2));
    SoTreeViewItem* partRow = nullptr;
    for (QTreeWidgetItemIterator it(&view()); *it; ++it) {
        if (static_cast<SoTreeViewItem*>(*it)->node() == shape)
            partRow = static_cast<SoTreeViewItem*>(*it);
    }
    ASSERT_TRUE(partRow);
    view().setCurrentItem(partRow);
    const auto* name = overview().currentPage()->findChild<QLineEdit*>("m_nodeNameValue");
    EXPECT_EQ(name->text(), "shape");
    EXPECT_TRUE(name->isReadOnly());
    expectAllAt(shape);
}

TEST_F(SelectionTest, ANodeOnTwoTabsAndInTheWatchGoesFromAllOfThem)
{
    view().setCurrentItem(row(1));
    manager().setNodeOverview(row(1));
    manager().getNodeEdition()->addFieldWatch();
    m_root->removeChild(m_cube);
    EXPECT_EQ(overview().page(0)->container(), nullptr);
    EXPECT_NE(overview().page(1)->container(), nullptr); // it follows the tree
    EXPECT_EQ(manager().getNodeEdition()->fieldWatch().topLevelItemCount(), 0);
    EXPECT_EQ(services().getSelectedNode(), view().currentRow()->node());
}
