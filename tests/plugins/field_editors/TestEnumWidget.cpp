#include "ShownWidget.h"

#include <plugins/field_editors/values/EnumWidget.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QWheelEvent>

namespace {

constexpr SoEnumEntry Sides[] = {{"FRONT", 1}, {"BACK", 2}, {"REAR", 2}, {"FRONT_AND_BACK", 7}};
constexpr SoEnumEntry Units[] = {{"METERS", 0}, {"FEET", 1}};

class Enum : public ShownWidget<EnumWidget, SoSFEnum> {
public:
    void show(int value, const EnumTable& table = Sides)
    {
        showField(SoSFEnum(nullptr, nullptr, value, table));
        list().setFocus();
    }
    QComboBox& list() { return *child<QComboBox>(); }
    std::string text() { return list().currentText().toStdString(); }
    std::string items()
    {
        QStringList names;
        for (int i = 0; i < list().count(); ++i)
            names += list().itemText(i);
        return names.join(' ').toStdString();
    }
};

TEST(EnumWidgetTest, listsEachValueOnceByItsFirstName)
{
    Enum shown;
    shown.show(2);
    EXPECT_EQ("FRONT BACK FRONT_AND_BACK", shown.items());
    EXPECT_EQ("BACK", shown.text());
    shown.show(7);
    EXPECT_EQ("FRONT_AND_BACK", shown.text());
    EXPECT_EQ(0, shown.edits);
}

TEST(EnumWidgetTest, takesTheNamesOfEachFieldThatIsShown)
{
    Enum shown;
    shown.show(1);
    shown.show(1, Units);
    EXPECT_EQ("METERS FEET", shown.items());
    EXPECT_EQ("FEET", shown.text());
    shown.show(5, EnumTable());
    EXPECT_EQ("", shown.items());
    EXPECT_EQ("5", shown.text());
}

TEST(EnumWidgetTest, aValueIsChosenFromTheListWithTheMouse)
{
    Enum shown;
    shown.show(1);
    shown.list().showPopup();
    QAbstractItemView& view = *shown.list().view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
    const QRect row = view.visualRect(view.model()->index(2, 0));
    QTest::mouseMove(view.viewport(), row.center());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, row.center());
    QTRY_COMPARE(shown.edits, 1);
    EXPECT_EQ(7, shown.last.getValue());
    EXPECT_EQ("FRONT_AND_BACK", shown.text());
}

TEST(EnumWidgetTest, arrowKeysGoThroughTheList)
{
    Enum shown;
    shown.show(1);
    shown.press(Qt::Key_Down);
    EXPECT_EQ(2, shown.last.getValue());
    shown.press(Qt::Key_Down);
    EXPECT_EQ(7, shown.last.getValue());
    shown.press(Qt::Key_Down);
    shown.press(Qt::Key_Up);
    EXPECT_EQ(2, shown.last.getValue());
    EXPECT_EQ(3, shown.edits);
}

struct Typed {
    const char* text;
    int value;
    const char* shown;
};

class EnumTyped : public testing::TestWithParam<Typed> {};

TEST_P(EnumTyped, countsWithReturn)
{
    Enum shown;
    shown.show(1);
    shown.retype(GetParam().text);
    EXPECT_EQ(0, shown.edits);
    shown.press(Qt::Key_Return);
    EXPECT_EQ(1, shown.edits);
    EXPECT_EQ(GetParam().value, shown.last.getValue());
    EXPECT_EQ(GetParam().shown, shown.text());
    EXPECT_EQ("", shown.problem);
}

INSTANTIATE_TEST_SUITE_P(Texts, EnumTyped,
                         testing::Values(Typed{"BACK", 2, "BACK"}, Typed{"REAR", 2, "BACK"}, Typed{"back", 2, "BACK"},
                                         Typed{"12", 12, "12"}, Typed{" -3 ", -3, "-3"},
                                         Typed{"7", 7, "FRONT_AND_BACK"}, Typed{"0x10", 16, "16"}));

struct Malformed {
    const char* text;
    const char* problem;
};

class EnumMalformed : public testing::TestWithParam<Malformed> {};

TEST_P(EnumMalformed, isMarkedAndDoesNotCount)
{
    Enum shown;
    shown.show(1);
    shown.retype(GetParam().text);
    if (QString(GetParam().text).isEmpty())
        shown.press(Qt::Key_Delete);
    EXPECT_EQ(GetParam().problem, shown.problem.toStdString());
    EXPECT_EQ(GetParam().problem, shown.list().toolTip().toStdString());
    shown.press(Qt::Key_Return);
    EXPECT_EQ(0, shown.edits);
    EXPECT_EQ(GetParam().text, shown.text());
    shown.press(Qt::Key_Escape);
    EXPECT_EQ("FRONT", shown.text());
    EXPECT_EQ("", shown.problem);
    EXPECT_EQ("", shown.list().toolTip());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, EnumMalformed,
    testing::Values(Malformed{"", "A name or a number is missing."},
                    Malformed{"SIDE", "\"SIDE\" is no name of this enumeration."},
                    Malformed{"FRONT BACK", "\"FRONT BACK\" is no name of this enumeration."},
                    Malformed{"1.5", "\"1.5\" is not a whole number."}, Malformed{"12x", "\"12x\" is not a number."},
                    Malformed{"2147483648", "2147483648 is not between -2147483648 and 2147483647."}));

TEST(EnumWidgetTest, whatIsTypedStaysWhileTheValueChanges)
{
    Enum shown;
    shown.show(1);
    shown.retype("BA");
    shown.widget.showValue(SoSFEnum(nullptr, nullptr, 7, Sides));
    EXPECT_EQ("BA", shown.text());
    shown.type("CK");
    shown.press(Qt::Key_Return);
    EXPECT_EQ(2, shown.last.getValue());
    shown.retype("FRO");
    shown.widget.showValue(SoSFEnum(nullptr, nullptr, 7, Sides));
    shown.press(Qt::Key_Escape);
    EXPECT_EQ("FRONT_AND_BACK", shown.text());
}

TEST(EnumWidgetTest, whatIsTypedForOneFieldIsNotGivenToAnother)
{
    Enum shown;
    shown.show(1);
    shown.retype("BACK");
    shown.widget.forgetInput();
    shown.widget.showValue(SoSFEnum(nullptr, nullptr, 0, Units));
    EXPECT_EQ("METERS", shown.text());
    shown.press(Qt::Key_Return);
    EXPECT_EQ(0, shown.edits);
}

TEST(EnumWidgetTest, whatIsTypedCountsWhenTheFocusGoes)
{
    Enum shown;
    shown.show(1);
    shown.retype("9");
    shown.list().clearFocus();
    EXPECT_EQ(1, shown.edits);
    EXPECT_EQ(9, shown.last.getValue());
    EXPECT_EQ("9", shown.text());
}

TEST(EnumWidgetTest, theWheelPassesWithoutFocus)
{
    Enum shown;
    shown.show(1);
    const auto turn = [&] {
        QWheelEvent wheel(QPointF(5, 5), shown.list().mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&shown.list(), &wheel);
    };
    shown.list().clearFocus();
    turn();
    EXPECT_EQ(0, shown.edits);
    shown.list().setFocus();
    turn();
    EXPECT_EQ(1, shown.edits);
    EXPECT_EQ(2, shown.last.getValue());
}

TEST(EnumWidgetTest, isDimmedWhenItCannotBeEdited)
{
    Enum shown;
    shown.show(2);
    shown.widget.setReadOnly(true);
    EXPECT_FALSE(shown.list().isEnabled());
    EXPECT_EQ("BACK", shown.text());
}

} // namespace
