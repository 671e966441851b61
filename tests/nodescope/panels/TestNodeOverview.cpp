#include "OverviewFixture.h"

#include <vexel/base/SoPreferences.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>

#include <QKeyEvent>
#include <QSignalSpy>
#include <QVBoxLayout>

Q_DECLARE_METATYPE(SoNode*)

namespace {

/** A node that can be told to prevail over others. */
class Prevailing : public SoNode {
    SO_NODE(Prevailing, SoNode)
public:
    SoSFBool override{this, "override", false};
};

/** Fields that belong to no node. */
class Record : public SoFieldContainer {
    SO_CONTAINER(Record, SoFieldContainer)
public:
    SoSFBool flag{this, "flag", false};
};

class NodeOverviewTest : public OverviewTest {
protected:
    /** Types a text into the name, also one of characters that a keyboard may not have. */
    void type(const char* text) const
    {
        for (const QChar character : QString::fromUtf8(text)) {
            QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QApplication::sendEvent(name(), &event);
        }
    }
};

QString address(const void* object)
{
    return "0x" + QString::number(quintptr(object), 16);
}

} // namespace

TEST_F(NodeOverviewTest, HasItsWidgetsUnderTheirNames)
{
    EXPECT_EQ(page().objectName(), "SoNodeOverview");
    EXPECT_EQ(page().windowTitle(), "Node Overview");
    for (const char* name : {"m_upperFrame", "m_nodeNameLabel", "m_nodeNameValue", "m_nodeIdLabel", "m_adressLabel",
                             "m_overrideCheckBox", "m_showChangedCheckBox", "m_watchButton", "m_nodeOverviewList"})
        EXPECT_TRUE(find<QWidget>(name)) << name;
    const std::tuple<const char*, int, int> layouts[] = {{"m_nodeOverviewLayout", 0, 0},
                                                         {"m_upperFrameLayout", 3, 0},
                                                         {"m_nodeInfoLayout", 4, 9},
                                                         {"m_checkLayout", 4, 7}};
    for (const auto& [name, margin, spacing] : layouts) {
        const auto* layout = page().findChild<QBoxLayout*>(name);
        ASSERT_TRUE(layout) << name;
        EXPECT_EQ(layout->contentsMargins(), QMargins(margin, margin, margin, margin)) << name;
        EXPECT_EQ(layout->spacing(), spacing) << name;
    }
    EXPECT_EQ(find<QCheckBox>("m_overrideCheckBox")->text(), "Override");
    EXPECT_EQ(find<QCheckBox>("m_showChangedCheckBox")->text(), "Show Changed");
    EXPECT_EQ(find<QPushButton>("m_watchButton")->text(), "Watch");
    EXPECT_FALSE(find<QPushButton>("m_watchButton")->isEnabled());
    EXPECT_EQ(find<QLabel>("m_nodeNetNameLabel"), nullptr);
}

TEST_F(NodeOverviewTest, ShowsNameNumberAddressAndFields)
{
    overview->setNodeOverview(cube, nullptr);
    EXPECT_EQ(label("m_nodeNameLabel"), "<b> Node Name </b>:");
    EXPECT_EQ(name()->text(), "box");
    EXPECT_FALSE(name()->isReadOnly());
    EXPECT_EQ(label("m_nodeIdLabel"), "<b> Node Id </b>: " + QString::number(cube->getNodeId()));
    EXPECT_EQ(label("m_adressLabel"), "<b> Node Address </b>: " + address(cube));
    ASSERT_EQ(page().list().topLevelItemCount(), cube->getFieldData().getNumFields());
    EXPECT_EQ(page().list().currentRow(), page().list().row(0));
    EXPECT_TRUE(find<QPushButton>("m_watchButton")->isEnabled());
    ASSERT_TRUE(page().list().row(0)->defaultField());
    EXPECT_TRUE(page().list().row(0)->defaultField()->isSame(page().list().row(0)->field()));

    page().clear();
    EXPECT_EQ(label("m_nodeNameLabel"), "<b> Node Name </b>: ");
    EXPECT_EQ(name()->text(), "");
    EXPECT_EQ(label("m_nodeIdLabel"), "<b> Node Id </b>: ");
    EXPECT_EQ(label("m_adressLabel"), "<b> Node Address </b>: ");
    EXPECT_EQ(page().list().topLevelItemCount(), 0);
    EXPECT_FALSE(find<QPushButton>("m_watchButton")->isEnabled());
}

TEST_F(NodeOverviewTest, APageCanShowAContainerFromTheStart)
{
    const SoNodeOverview made(cube, nullptr, nullptr, "other");
    EXPECT_EQ(made.objectName(), "other");
    EXPECT_EQ(made.container(), cube);
}

TEST_F(NodeOverviewTest, APartOfAKitHasThePartsNameAndCannotBeRenamed)
{
    auto* kit = new SoShapeKit;
    kit->ref();
    SoNode* shape = kit->getPart("shape", true);
    overview->setNodeOverview(shape, kit);
    EXPECT_EQ(label("m_nodeNameLabel"), "<b> Part Name </b>:");
    EXPECT_EQ(name()->text(), "shape");
    EXPECT_TRUE(name()->isReadOnly());
    overview->setNodeOverview(shape, nullptr);
    EXPECT_EQ(label("m_nodeNameLabel"), "<b> Node Name </b>:");
    EXPECT_FALSE(name()->isReadOnly());
    kit->unref();
}

TEST_F(NodeOverviewTest, PartsOfAKitAreShownWhenTheUserWantsThem)
{
    auto* kit = new SoShapeKit;
    kit->ref();
    overview->setNodeOverview(kit, nullptr);
    const SoFieldItem* part = page().list().findRow(kit->getField("shape"));
    ASSERT_TRUE(part);
    EXPECT_TRUE(part->isHidden());
    SoPreferenceStore::getInstance()->writeShowCatalogPart(SoPreferenceStore::NodeOverviewGroup, true);
    overview->setPreferences();
    EXPECT_FALSE(part->isHidden());
    kit->unref();
}

TEST_F(NodeOverviewTest, RenamingTakesLatin1Only)
{
    qRegisterMetaType<SoNode*>("SoNode*");
    QSignalSpy renamed(overview.get(), &SoTabNodeOverview::nodeNameChanged);
    overview->setNodeOverview(cube, nullptr);
    name()->clear();
    type("gr\u00fcn");
    EXPECT_EQ(cube->getName().toQString(), QString::fromUtf8("gr\u00fcn"));
    EXPECT_EQ(renamed.count(), 4);
    EXPECT_EQ(renamed.last()[0].value<SoNode*>(), cube);
    name()->setCursorPosition(1);
    type("\u20ac");
    EXPECT_EQ(cube->getName().toQString(), QString::fromUtf8("g?r\u00fcn"));
    EXPECT_EQ(name()->text(), QString::fromUtf8("g?r\u00fcn"));
    EXPECT_EQ(name()->cursorPosition(), 2);
    EXPECT_EQ(page().list().row(1)->text(SoFieldItem::NodeNameColumn), name()->text());
}

TEST_F(NodeOverviewTest, OnlyContainersWithAnOverrideFieldCanBeOverridden)
{
    auto* node = new Prevailing;
    node->ref();
    overview->setNodeOverview(cube, nullptr);
    EXPECT_FALSE(find<QCheckBox>("m_overrideCheckBox")->isEnabled());
    overview->setNodeOverview(node, nullptr);
    EXPECT_TRUE(find<QCheckBox>("m_overrideCheckBox")->isEnabled());
    QSignalSpy wanted(overview.get(), &SoTabNodeOverview::overrideRequested);
    overview->show();
    click("m_overrideCheckBox");
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_TRUE(wanted[0][0].toBool());
    overview.reset();
    node->unref();
}

TEST_F(NodeOverviewTest, TheBoxFollowsTheNode)
{
    overview->setNodeOverview(cube, nullptr);
    overview->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(overview.get()));
    cube->setOverride(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return find<QCheckBox>("m_overrideCheckBox")->isChecked(); }));
    overview->hide();
    cube->setOverride(false);
    EXPECT_TRUE(find<QCheckBox>("m_overrideCheckBox")->isChecked()); // nobody sees it
    overview->show();
    EXPECT_FALSE(find<QCheckBox>("m_overrideCheckBox")->isChecked());
}

TEST_F(NodeOverviewTest, AnotherNodeStartsWithAllItsFields)
{
    auto* material = new SoMaterial;
    material->ref();
    overview->setNodeOverview(cube, nullptr);
    find<QCheckBox>("m_showChangedCheckBox")->setChecked(true);
    EXPECT_TRUE(page().list().row(0)->isHidden());
    overview->setNodeOverview(material, nullptr);
    EXPECT_FALSE(find<QCheckBox>("m_showChangedCheckBox")->isChecked());
    EXPECT_FALSE(page().list().row(0)->isHidden());
    page().clear();
    material->unref();
}

TEST_F(NodeOverviewTest, WhatIsNoNodeKeepsTheNumberAndCannotBeOverridden)
{
    auto* record = new Record;
    record->ref();
    overview->setNodeOverview(cube, nullptr);
    const QString number = label("m_nodeIdLabel");
    overview->setNodeOverview(record, nullptr);
    EXPECT_EQ(label("m_nodeIdLabel"), number);
    EXPECT_FALSE(find<QCheckBox>("m_overrideCheckBox")->isChecked());
    EXPECT_EQ(page().list().topLevelItemCount(), 1);
    record->unref();
    EXPECT_EQ(page().container(), nullptr); // it took the page's contents with it
}

TEST_F(NodeOverviewTest, ANodeThatIsDestroyedLeavesAnEmptyPage)
{
    overview->setNodeOverview(cube, nullptr);
    EXPECT_EQ(overview->tabText(0), "Cube");
    deleteCube();
    EXPECT_EQ(page().container(), nullptr);
    EXPECT_EQ(page().list().topLevelItemCount(), 0);
    EXPECT_EQ(overview->tabText(0), "");
    EXPECT_TRUE(overview->tabIcon(0).isNull());
    page().nameEdited("nobody");
}

TEST_F(NodeOverviewTest, ANodeWithoutFieldsIsForgottenToo)
{
    class Bare : public SoNode {};
    SoNode* node = new Bare;
    node->ref();
    overview->setNodeOverview(node, nullptr);
    EXPECT_EQ(page().list().topLevelItemCount(), 0);
    node->unref();
    EXPECT_EQ(page().container(), nullptr);
}

TEST_F(NodeOverviewTest, NetworkNamesTakeThePlaceOfNames)
{
    SoPreferences::setValue("ART_LAUNCH_NODESCOPE", "1");
    {
        SoNodeOverview extended(cube, nullptr);
        const auto* value = extended.findChild<QLineEdit*>("m_nodeNameValue");
        ASSERT_TRUE(extended.findChild<QLabel*>("m_nodeNetNameLabel"));
        EXPECT_EQ(value->text(), "&lt No NetName&gt ");
        EXPECT_EQ(extended.findChild<QLabel*>("m_nodeNetNameLabel")->text(), "<b> Node NetName </b>: %1");
        cube->setNetName("far");
        extended.setNodeOverview(cube, nullptr);
        EXPECT_EQ(value->text(), "far");
        EXPECT_EQ(extended.list().columnCount(), 9);
        EXPECT_EQ(extended.list().row(0)->text(SoFieldItem::NetNameColumn), "far");
    }
    SoPreferences::removeValue("ART_LAUNCH_NODESCOPE");
}
