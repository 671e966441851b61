#include <tests/nodescope/entry/InspectionFixture.h>

#include <extension/NscFieldEditor.h>
#include <extension/NscPluginsManager.h>
#include <vexel/base/SbString.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/sensors/SoSensorManager.h>

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QDateTimeEdit>
#include <QDialog>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

namespace {

constexpr char Scene[] = "#Vexel V2.1 ascii\nClock { fields [ SFTime start ] start 12.5 }\n";

/** The inspector with the example's own configuration. */
class ExamplePluginTest : public InspectionTest {
protected:
    ExamplePluginTest()
    {
        QSettings("Nodescope", "Statistics").clear();
        m_root->addChild(new SoCube);
        SoPreferences::setValue("VXL_NODESCOPE_CONFIGURATION_FILE", CONFIGURATION);
        SoPreferences::setValue("VXL_NODESCOPE_PLUGIN_PATH", PLUGIN_FOLDER);
        _startNode(m_root, nullptr);
    }
    ~ExamplePluginTest() override
    {
        _stop();
        SoPreferences::removeValue("VXL_NODESCOPE_PLUGIN_PATH");
    }

    static NscServices& services() { return *NscServices::getInstance(); }
    static QDockWidget& dock() { return *frame().findChild<QDockWidget*>("StatisticsDock"); }
    static std::string text() { return static_cast<QLabel*>(dock().widget())->text().toStdString(); }
    static QAction& countAction() { return *frame().findChild<QToolBar*>("StatisticsToolBar")->actions().front(); }

    /** A field of the type, in a node that the inspected scene has. */
    SoSFTime& addTime()
    {
        SoInput input;
        input.setBuffer(Scene, sizeof Scene - 1);
        SoNode* node = nullptr;
        EXPECT_TRUE(SoDB::read(&input, node));
        m_root->addChild(node);
        return static_cast<SoSFTime&>(*node->getField("start"));
    }
    static NscFieldEditor& editor()
    {
        return static_cast<NscFieldEditor&>(*NscShell::getInstance()->getExtensions(SoSFTime::getClassTypeId()).back());
    }
};

} // namespace

TEST_F(ExamplePluginTest, IsLoadedWithoutProblems)
{
    EXPECT_TRUE(NscPluginsManager::getInstance()->getProblems().empty());
    EXPECT_TRUE(dock().isVisible());
    EXPECT_TRUE(frame().findChild<QDockWidget*>("FieldEditor"));
}

TEST_F(ExamplePluginTest, CountsTheGraphOfTheSelectedNode)
{
    services().setSelectedNode(m_root);
    EXPECT_EQ(text(), "Separator\nNodes: 3\nShapes: 1\nTriangles: 12\nLines: 0\nPoints: 0");
    bool isInStatusBar = false;
    for (const QLabel* label : frame().statusBar()->findChildren<QLabel*>())
        isInStatusBar |= label->text() == "Nodes: 3, triangles: 12";
    EXPECT_TRUE(isInStatusBar);

    m_root->addChild(new SoCube);
    m_root->addChild(new SoCube);
    SoDB::getSensorManager().processDelayQueue(true);
    EXPECT_NE(text().find("The graph has changed since."), std::string::npos);
    countAction().trigger();
    EXPECT_EQ(text(), "Separator\nNodes: 5\nShapes: 3\nTriangles: 36\nLines: 0\nPoints: 0");
    services().setSelectedNode(nullptr);
    EXPECT_EQ(text(), "Select a node to see what it consists of.");
    EXPECT_FALSE(countAction().isEnabled());
}

TEST_F(ExamplePluginTest, DoesNotKeepNodesAlive)
{
    auto* const cube = new SoCube;
    cube->ref();
    services().setSelectedNode(cube);
    EXPECT_EQ(cube->getRefCount(), 1);
    EXPECT_TRUE(countAction().isEnabled());
    cube->unref();
    EXPECT_FALSE(countAction().isEnabled());
    EXPECT_EQ(text(), "Select a node to see what it consists of.");
}

TEST_F(ExamplePluginTest, OffersAMenuForEveryNode)
{
    services().setSelectedNode(m_root);
    QMenu* menu = nullptr;
    for (NscExtension* extension : NscShell::getInstance()->getExtensions(SoCube::getClassTypeId())) {
        if (extension->getNodeMenu())
            menu = extension->getNodeMenu();
    }
    ASSERT_TRUE(menu);
    menu->actions()[1]->trigger();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), text());
    QStringList menus;
    for (const QAction* each : frame().menuBar()->actions())
        menus << each->text();
    EXPECT_TRUE(menus.contains("&Statistics"));
}

TEST_F(ExamplePluginTest, ItsEntryInTheViewMenuFollowsTheDock)
{
    QAction* toggle = nullptr;
    for (QAction* each : frame().viewMenu()->actions()) {
        if (each->text() == "Statistics")
            toggle = each;
    }
    ASSERT_TRUE(toggle);
    EXPECT_TRUE(toggle->isChecked());
    dock().close();
    EXPECT_FALSE(toggle->isChecked());
    toggle->trigger();
    EXPECT_TRUE(dock().isVisible());
    toggle->trigger();
    EXPECT_FALSE(dock().isVisible());
}

TEST_F(ExamplePluginTest, ItsPreferenceIsSavedAndUsed)
{
    ModalAnswers answers;
    answers.expectDialog("Preferences", [](QDialog& dialog) {
        QCheckBox* box = nullptr;
        for (QCheckBox* each : dialog.findChildren<QCheckBox*>()) {
            if (each->text() == "&Count a node as soon as it is selected")
                box = each;
        }
        ASSERT_TRUE(box);
        EXPECT_TRUE(box->isChecked());
        box->setChecked(false);
        dialog.findChild<QPushButton*>("m_okButton")->click();
    });
    frame().action(ActionId::Preferences)->trigger();
    services().setSelectedNode(m_root);
    EXPECT_EQ(text(), "Not counted.");
    countAction().trigger();
    EXPECT_NE(text().find("Nodes: 3"), std::string::npos);
}

TEST_F(ExamplePluginTest, ATimeIsEditedWithUndo)
{
    SoSFTime& field = addTime();
    services().setSelectedField(&field);
    QWidget& widget = *editor().getWidget();
    EXPECT_EQ(widget.window(), &frame()); // the panel of field editors shows it
    auto* const seconds = widget.findChild<QDoubleSpinBox*>();
    auto* const date = widget.findChild<QDateTimeEdit*>();
    EXPECT_EQ(seconds->value(), 12.5);
    EXPECT_EQ(date->dateTime().toString(Qt::ISODateWithMs), "1970-01-01T00:00:12.500Z");

    seconds->setFocus();
    seconds->selectAll();
    QTest::keyClicks(seconds, "86400");
    QTest::keyClick(seconds, Qt::Key_Return);
    EXPECT_EQ(field.getValue(), SbTime(86400));
    SoDB::getSensorManager().processDelayQueue(true);
    EXPECT_EQ(date->date(), QDate(1970, 1, 2));
    date->setDate(QDate(1971, 1, 1));
    EXPECT_EQ(field.getValue(), SbTime(365 * 86400.0));
    frame().action(ActionId::Undo)->trigger();
    frame().action(ActionId::Undo)->trigger();
    EXPECT_EQ(field.getValue(), SbTime(12.5));
    frame().action(ActionId::Redo)->trigger();
    EXPECT_EQ(field.getValue(), SbTime(86400));
}

TEST_F(ExamplePluginTest, AnEditOutlivesItsField)
{
    SoSFTime& field = addTime();
    services().setSelectedField(&field);
    editor().getWidget()->findChild<QDoubleSpinBox*>()->setValue(3);
    EXPECT_EQ(field.getValue(), SbTime(3));
    m_root->removeChild(m_root->getNumChildren() - 1);
    EXPECT_FALSE(editor().getWidget()->isEnabled());
    services().undo();
    services().redo();
}
