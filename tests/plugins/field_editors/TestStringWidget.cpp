#include "EditorFixture.h"
#include "ShownWidget.h"

#include <plugins/field_editors/values/StringWidget.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoInfo.h>
#include <vexel/nodes/SoText2.h>

#include <QPlainTextEdit>
#include <QTableView>

namespace {

class String : public ShownWidget<StringWidget, SoSFString> {
public:
    void show(const QString& text)
    {
        showValue(SbString(text));
        edit().setFocus();
    }
    QPlainTextEdit& edit() { return *child<QPlainTextEdit>(); }
    std::string text() { return last.getValue().toUtf8().toStdString(); }
};

TEST(StringWidgetTest, eachKeyCountsAndAllTypingBelongsTogether)
{
    String shown;
    shown.show("one");
    shown.press(Qt::Key_End);
    shown.type(" two");
    EXPECT_EQ(4, shown.edits);
    EXPECT_EQ("one two", shown.text());
    EXPECT_EQ(QStringList("begun"), shown.gestures);
    shown.edit().clearFocus();
    EXPECT_EQ(QStringList({"begun", "ended"}), shown.gestures);
    EXPECT_EQ(4, shown.edits);
}

TEST(StringWidgetTest, controlReturnEndsAndReturnIsANewLine)
{
    String shown;
    shown.show("one");
    shown.press(Qt::Key_End);
    shown.press(Qt::Key_Return);
    shown.type("2");
    EXPECT_EQ("one\n2", shown.text());
    shown.press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"begun", "ended"}), shown.gestures);
    shown.type("3");
    EXPECT_EQ("one\n23", shown.text());
    EXPECT_EQ(QStringList({"begun", "ended", "begun"}), shown.gestures);
    shown.edit().clearFocus();
}

TEST(StringWidgetTest, escapeTakesBackAllThatWasTyped)
{
    String shown;
    shown.show("one\ntwo");
    shown.retype("else");
    shown.press(Qt::Key_Escape);
    EXPECT_EQ(QStringList({"begun", "cancelled"}), shown.gestures);
    EXPECT_EQ("one\ntwo", shown.edit().toPlainText());
    shown.edit().clearFocus();
    EXPECT_EQ(QStringList({"begun", "cancelled"}), shown.gestures);
}

class Kept : public testing::TestWithParam<QString> {};

TEST_P(Kept, staysButForWhatIsTyped)
{
    String shown;
    shown.show(GetParam());
    shown.press(Qt::Key_Home, Qt::ControlModifier);
    shown.type("x");
    EXPECT_EQ("x" + GetParam(), shown.last.getValue().toQString());
    shown.press(Qt::Key_Backspace);
    EXPECT_EQ(GetParam(), shown.last.getValue().toQString());
    shown.edit().clearFocus();
}

INSTANTIATE_TEST_SUITE_P(Texts, Kept,
                         testing::Values(QString(), QString("a\n\nb\n"), QString("a\r\nb\r\n"), QString("\"a\" \\ b\t"),
                                         QString("a") + QChar(QChar::Nbsp) + "b",
                                         QString::fromUtf8("\xc3\xa4 \xf0\x9f\x98\x80")));

TEST(StringWidgetTest, whatIsTypedStaysWhileTheValueChanges)
{
    String shown;
    shown.show("one");
    shown.retype("two");
    shown.widget.showValue(SoSFString(nullptr, nullptr, SbString("host")));
    EXPECT_EQ("two", shown.edit().toPlainText());
    shown.edit().clearFocus();
    EXPECT_EQ("host", shown.edit().toPlainText()) << "that is the value now";
    shown.edit().setFocus();
    shown.widget.showValue(SoSFString(nullptr, nullptr, SbString("again")));
    EXPECT_EQ("again", shown.edit().toPlainText());
    EXPECT_EQ(3, shown.edits);
}

TEST(StringWidgetTest, theCursorStaysWhenTheSameValueComesBack)
{
    String shown;
    shown.show("one");
    shown.press(Qt::Key_Right);
    shown.widget.showValue(SoSFString(nullptr, nullptr, SbString("one")));
    shown.type("x");
    EXPECT_EQ("oxne", shown.text());
    shown.edit().clearFocus();
}

TEST(StringWidgetTest, looksReadOnly)
{
    String shown;
    shown.show("one");
    shown.widget.setReadOnly(true);
    EXPECT_EQ(shown.widget.palette().color(QPalette::Window), shown.edit().palette().color(QPalette::Base));
    shown.type("x");
    EXPECT_EQ(0, shown.edits);
}

class StringEditorTest : public EditorTest {
protected:
    QPlainTextEdit& focusedText()
    {
        QPlainTextEdit& edit = *seen<QPlainTextEdit>();
        edit.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&frame()));
        return edit;
    }
};

TEST_F(StringEditorTest, allTypingIsUndoneInOneStep)
{
    addEditor("SFString");
    auto* const node = new SoInfo;
    m_root->addChild(node);
    node->string = "";
    select(node->string);
    QPlainTextEdit& edit = focusedText();
    QTest::keyClicks(&edit, "hello");
    EXPECT_EQ("hello", node->string.getValue());
    edit.clearFocus();
    undo();
    EXPECT_EQ("", node->string.getValue());
    QTRY_COMPARE(edit.toPlainText(), QString());
    redo();
    EXPECT_EQ("hello", node->string.getValue());
}

TEST_F(StringEditorTest, escapeGivesTheFieldItsTextBack)
{
    addEditor("SFString");
    auto* const node = new SoInfo;
    m_root->addChild(node);
    node->string = "before";
    select(node->string);
    QPlainTextEdit& edit = focusedText();
    QTest::keyClicks(&edit, "not ");
    EXPECT_EQ("not before", node->string.getValue());
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_EQ("before", node->string.getValue());
    EXPECT_EQ("before", edit.toPlainText());
    edit.clearFocus();
    undo();
    EXPECT_EQ("before", node->string.getValue()) << "there is nothing to undo";
}

TEST_F(StringEditorTest, anotherFieldDoesNotGetWhatIsTyped)
{
    addEditor("SFString");
    auto* const first = new SoInfo;
    auto* const second = new SoInfo;
    m_root->addChild(first);
    m_root->addChild(second);
    first->string = "";
    second->string = "second";
    select(first->string);
    QPlainTextEdit& edit = focusedText();
    QTest::keyClicks(&edit, "first");
    select(second->string);
    EXPECT_EQ("second", edit.toPlainText());
    QTest::keyClick(&edit, Qt::Key_End);
    QTest::keyClicks(&edit, "x");
    EXPECT_EQ("first", first->string.getValue());
    EXPECT_EQ("secondx", second->string.getValue());
    edit.clearFocus();
    undo();
    EXPECT_EQ("second", second->string.getValue());
    undo();
    EXPECT_EQ("", first->string.getValue());
}

TEST_F(StringEditorTest, theCurrentRowOfAListIsTypedInSeveralLines)
{
    addEditor("MFString");
    auto* const node = new SoText2;
    m_root->addChild(node);
    const SbString texts[] = {"a", "b"};
    node->string.setValues(0, 2, texts);
    select(node->string);
    auto* const table = seen<QTableView>();
    table->setCurrentIndex(table->model()->index(1, 0));
    QPlainTextEdit& edit = focusedText();
    EXPECT_EQ("b", edit.toPlainText());
    QTest::keyClick(&edit, Qt::Key_End);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, "cd");
    EXPECT_EQ("b\ncd", node->string[1]);
    edit.clearFocus();
    undo();
    EXPECT_EQ("b", node->string[1]);
    EXPECT_EQ("a", node->string[0]);
}

} // namespace
