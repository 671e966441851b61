#include "ShownWidget.h"

#include <plugins/field_editors/values/NameText.h>
#include <plugins/field_editors/values/NameWidget.h>
#include <vexel/base/SbString.h>
#include <vexel/fields/SoSFName.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

namespace {

class Name : public ShownWidget<NameWidget, SoSFName> {
public:
    void show(const QString& name)
    {
        showValue(SbName(name));
        line().setFocus();
    }
    QLineEdit& line() { return *child<QLineEdit>(); }
};

/** Whether a name is the same one after it was written and read. */
bool isReadBack(const QString& text)
{
    SoSFName written;
    written.setValue(SbName(text));
    SoSFName read;
    return read.set(written.SoField::get()) && read.getValue().toQString() == text &&
           QString::fromUtf8(read.getValue().getString()) == text;
}

TEST(NameWidgetTest, whatIsTypedCountsWithReturnAndWhenTheFocusGoes)
{
    Name shown;
    shown.show("Arm");
    EXPECT_EQ("Arm", shown.line().text());
    shown.retype("left arm \"2\"");
    EXPECT_EQ(0, shown.edits);
    shown.press(Qt::Key_Return);
    EXPECT_EQ(1, shown.edits);
    EXPECT_EQ("left arm \"2\"", shown.last.getValue().toQString());
    shown.retype("Leg");
    shown.line().clearFocus();
    EXPECT_EQ(2, shown.edits);
    EXPECT_EQ("Leg", shown.last.getValue().toQString());
}

TEST(NameWidgetTest, aNameMayBeEmpty)
{
    Name shown;
    shown.show("Arm");
    shown.press(Qt::Key_A, Qt::ControlModifier);
    shown.press(Qt::Key_Delete);
    shown.press(Qt::Key_Return);
    EXPECT_EQ(1, shown.edits);
    EXPECT_TRUE(shown.last.getValue().isEmpty());
}

TEST(NameWidgetTest, escapeAndForgettingTakeBackWhatIsTyped)
{
    Name shown;
    shown.show("Arm");
    shown.retype("Leg");
    shown.widget.showValue(SoSFName(nullptr, nullptr, SbName("Head")));
    EXPECT_EQ("Leg", shown.line().text()) << "the user is typing";
    shown.press(Qt::Key_Escape);
    EXPECT_EQ("Head", shown.line().text());
    shown.type("x");
    shown.widget.forgetInput();
    EXPECT_EQ("Head", shown.line().text());
    shown.press(Qt::Key_Return);
    EXPECT_EQ(0, shown.edits);
}

struct Malformed {
    QString text;
    const char* problem;
};

class NameMalformed : public testing::TestWithParam<Malformed> {};

TEST_P(NameMalformed, isMarkedAndDoesNotCount)
{
    Name shown;
    shown.show("Arm");
    const QPalette before = shown.line().palette();
    QGuiApplication::clipboard()->setText(GetParam().text);
    shown.press(Qt::Key_A, Qt::ControlModifier);
    shown.press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(GetParam().problem, shown.problem.toStdString());
    EXPECT_EQ(GetParam().problem, shown.line().toolTip().toStdString());
    EXPECT_NE(before.color(QPalette::Base), shown.line().palette().color(QPalette::Base));
    shown.press(Qt::Key_Return);
    shown.line().clearFocus();
    EXPECT_EQ(0, shown.edits);
    shown.line().setFocus();
    shown.press(Qt::Key_Escape);
    EXPECT_EQ("", shown.problem);
    EXPECT_EQ(before.color(QPalette::Base), shown.line().palette().color(QPalette::Base));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NameMalformed,
    testing::Values(
        Malformed{QString("ab") + QChar(0) + "c", "Character 3 of the name, U+0000, would end it."},
        Malformed{QChar(0xfeff) + QString("a"), "Character 1 of the name, U+FEFF, would be lost."},
        Malformed{QString("a") + QChar(0xd83d), "Character 2 of the name, U+D83D, is half a character only."},
        Malformed{QChar(0xde00) + QString("a"), "Character 1 of the name, U+DE00, is half a character only."}));

TEST(NameTextTest, refusesExactlyWhatIsNotReadBack)
{
    SoDB::init();
    for (int unit = 0; unit <= 0xffff; ++unit) {
        for (const QString& before : {QString(), QString("a")}) {
            const QString text = before + QChar(ushort(unit)) + "b";
            EXPECT_EQ(isReadBack(text), NameText::problemOf(text).isEmpty()) << std::hex << unit;
        }
    }
    EXPECT_TRUE(isReadBack(QString::fromUtf8("a\xf0\x9f\x98\x80")));
    EXPECT_EQ("", NameText::problemOf(QString::fromUtf8("a\xf0\x9f\x98\x80")));
    EXPECT_TRUE(isReadBack(QString()));
}

TEST(NameWidgetTest, looksReadOnlyAndKeepsItsTextForCopies)
{
    Name shown;
    shown.show("Arm");
    const QColor editable = shown.line().palette().color(QPalette::Base);
    shown.widget.setReadOnly(true);
    EXPECT_EQ(shown.widget.palette().color(QPalette::Window), shown.line().palette().color(QPalette::Base));
    shown.retype("Leg");
    EXPECT_EQ("Arm", shown.line().text());
    shown.press(Qt::Key_A, Qt::ControlModifier);
    shown.press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Arm", QGuiApplication::clipboard()->text());
    shown.widget.setReadOnly(false);
    EXPECT_EQ(editable, shown.line().palette().color(QPalette::Base));
}

} // namespace
