#include "EditorFixture.h"

#include <plugins/field_editors/values/NumberBox.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/nodes/SoCone.h>
#include <vexel/nodes/SoCylinder.h>

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>

namespace {

class PanelTest : public EditorTest {
protected:
    PanelTest()
    {
        m_cone->setName("roof");
        m_root->addChild(m_cone);
    }

    bool shows(const QString& text)
    {
        for (const QLabel* label : dock().findChildren<QLabel*>()) {
            if (label->isVisible() && label->text() == text)
                return true;
        }
        return false;
    }
    QAction* action(const char* name) { return dock().findChild<QAction*>(name); }
    QToolButton* button(const char* name)
    {
        for (QToolButton* each : dock().findChildren<QToolButton*>()) {
            if (each->defaultAction() == action(name))
                return each;
        }
        return nullptr;
    }
    QAction* viewToggle()
    {
        for (QAction* each : frame().viewMenu()->actions()) {
            if (each->text() == "Field Editor")
                return each;
        }
        return nullptr;
    }

    SoCone* m_cone = new SoCone;
};

TEST_F(PanelTest, showsWhichFieldItIs)
{
    addEditor("SFFloat");
    select(m_cone->height);
    EXPECT_TRUE(shows("height"));
    EXPECT_TRUE(shows("SFFloat of Cone \"roof\""));
    EXPECT_TRUE(shows("default value"));
}

TEST_F(PanelTest, prefersTheEditorOfExactlyTheType)
{
    addEditor("SFFloat");
    addEditor("SField");
    select(m_cone->height);
    EXPECT_TRUE(seen<NumberBox>());
    select(m_cone->parts);
    EXPECT_FALSE(seen<NumberBox>());
    EXPECT_EQ(QString("ALL"), seen<QPlainTextEdit>()->toPlainText());
}

TEST_F(PanelTest, saysWhenThereIsNoEditorOrNoField)
{
    select(m_cone->height);
    EXPECT_TRUE(shows("There is no editor for fields of this type."));
    NscServices::getInstance()->setSelectedField(nullptr);
    EXPECT_TRUE(shows("Select a field to edit it here."));
    EXPECT_FALSE(shows("height"));
}

TEST_F(PanelTest, typingEditsTheFieldAndUndoShowsIt)
{
    addEditor("SFFloat");
    select(m_cone->height);
    auto* const box = seen<NumberBox>();
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "5\r");
    EXPECT_EQ(5, m_cone->height.getValue());
    undo();
    EXPECT_EQ(2, m_cone->height.getValue());
    QTRY_COMPARE(box->value(), 2.0);
}

TEST_F(PanelTest, whatIsTypedForAFieldIsNotGivenToAnother)
{
    addEditor("SFFloat");
    addEditor("SField");
    select(m_cone->height);
    auto* const box = seen<NumberBox>();
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "5x");
    select(m_cone->bottomRadius);
    EXPECT_EQ("1", seen<QLineEdit>()->text());
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(1, m_cone->bottomRadius.getValue());
    EXPECT_EQ(2, m_cone->height.getValue());
    EXPECT_FALSE(shows("\"5x\" is not a number."));
    auto* const other = new SoCone;
    m_root->addChild(other);
    select(m_cone->parts);
    auto* const text = seen<QPlainTextEdit>();
    text->setFocus();
    text->selectAll();
    QTest::keyClicks(text, "SIDES");
    select(other->parts);
    EXPECT_EQ("ALL", text->toPlainText());
    text->clearFocus();
    EXPECT_EQ(SoCone::ALL, other->parts.getValue());
}

TEST_F(PanelTest, followsTheHost)
{
    addEditor("SFFloat");
    select(m_cone->height);
    m_cone->height = 7.5f;
    QTRY_COMPARE(seen<QLineEdit>()->text(), QString("7.5"));
    EXPECT_FALSE(shows("default value"));
}

TEST_F(PanelTest, aFieldThatGoesIsLetGo)
{
    addEditor("SFFloat");
    select(m_cone->height);
    m_root->removeChild(m_cone);
    EXPECT_TRUE(shows("Select a field to edit it here."));
}

TEST_F(PanelTest, resetsAndIgnores)
{
    addEditor("SFFloat");
    select(m_cone->height);
    EXPECT_FALSE(button("reset")->isEnabled());
    m_cone->height = 5;
    QTRY_VERIFY(button("reset")->isEnabled());
    QTest::mouseClick(button("reset"), Qt::LeftButton);
    EXPECT_TRUE(m_cone->height.isDefault());
    QTest::mouseClick(button("ignore"), Qt::LeftButton);
    EXPECT_TRUE(m_cone->height.isIgnored());
    QTRY_VERIFY(shows("default value, ignored"));
    undo();
    EXPECT_FALSE(m_cone->height.isIgnored());
    QTRY_VERIFY(!action("ignore")->isChecked());
}

TEST_F(PanelTest, copiesAndPastesAsText)
{
    addEditor("SFFloat");
    select(m_cone->height);
    QTest::mouseClick(button("copy"), Qt::LeftButton);
    EXPECT_EQ(QString("2"), QGuiApplication::clipboard()->text());
    QGuiApplication::clipboard()->setText("12.5");
    QTest::mouseClick(button("paste"), Qt::LeftButton);
    EXPECT_EQ(12.5f, m_cone->height.getValue());
    QGuiApplication::clipboard()->setText("no number");
    QTest::mouseClick(button("paste"), Qt::LeftButton);
    EXPECT_EQ(12.5f, m_cone->height.getValue());
    EXPECT_TRUE(shows("The clipboard holds no value of type SFFloat."));
}

TEST_F(PanelTest, showsAndCutsAConnection)
{
    auto* source = new SoCylinder;
    m_root->addChild(source);
    source->setName("tower");
    m_cone->height.connectFrom(&source->height);
    addEditor("SFFloat");
    select(m_cone->height);
    EXPECT_TRUE(shows("Connected from Cylinder \"tower\".height"));
    EXPECT_TRUE(seen<NumberBox>()->isReadOnly());
    for (QToolButton* each : dock().findChildren<QToolButton*>()) {
        if (each->text() == "Cut")
            QTest::mouseClick(each, Qt::LeftButton);
    }
    EXPECT_FALSE(m_cone->height.isConnected());
    undo();
    EXPECT_TRUE(m_cone->height.isConnected());
}

TEST_F(PanelTest, nodesAreNamedAndNotEdited)
{
    addEditor("SField");
    SoSFNode field;
    field.setValue(m_cone);
    select(field);
    EXPECT_EQ(QString("Cone \"roof\""), seen<QPlainTextEdit>()->toPlainText());
    EXPECT_TRUE(seen<QPlainTextEdit>()->isReadOnly());
    EXPECT_FALSE(action("copy")->isEnabled());
}

TEST_F(PanelTest, outputsAreShownAsSuch)
{
    addEditor("SFFloat");
    m_cone->height.setFieldType(SoField::OUTPUT_ONLY);
    select(m_cone->height);
    EXPECT_TRUE(shows("output, read-only, default value"));
    EXPECT_TRUE(seen<NumberBox>()->isReadOnly());
    EXPECT_FALSE(action("paste")->isEnabled());
}

TEST_F(PanelTest, textThatIsNoValueIsMarkedAndNotApplied)
{
    addEditor("SField");
    select(m_cone->height);
    auto* const edit = seen<QPlainTextEdit>();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, "tall");
    EXPECT_TRUE(shows("This text is no value of type SFFloat."));
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(2, m_cone->height.getValue());
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(QString("2"), edit->toPlainText());
    EXPECT_FALSE(shows("This text is no value of type SFFloat."));
    edit->selectAll();
    QTest::keyClicks(edit, "3.5");
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(3.5f, m_cone->height.getValue());
}

TEST_F(PanelTest, itsEntryInTheViewMenuShowsAndHidesIt)
{
    select(m_cone->height);
    ASSERT_TRUE(viewToggle()->isChecked());
    viewToggle()->trigger();
    EXPECT_TRUE(dock().isHidden());
    viewToggle()->trigger();
    EXPECT_FALSE(dock().isHidden());
    dock().close();
    EXPECT_FALSE(viewToggle()->isChecked());
    viewToggle()->trigger();
    EXPECT_FALSE(dock().isHidden());
}

TEST_F(PanelTest, givesTheWidgetOfAnEditorBack)
{
    NscFieldEditor& editor = addEditor("SFFloat");
    select(m_cone->height);
    EXPECT_TRUE(dock().isAncestorOf(editor.getWidget()));
    m_panel.reset();
    EXPECT_EQ(nullptr, editor.getWidget()->parentWidget());
}

} // namespace
