#include "WidgetFixture.h"

#include <plugins/field_editors/values/DragLabel.h>
#include <plugins/field_editors/values/NumbersWidget.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFShort.h>
#include <vexel/fields/SoSFVec3f.h>

#include <QSlider>

namespace {

template <class Field>
class Numbers : public ShownWidget<NumbersWidget, Field> {
public:
    Numbers() : ShownWidget<NumbersWidget, Field>(NumberAccess::of<Field>()) {}
};

class NumbersWidgetTest : public testing::Test {
protected:
    NumbersWidgetTest() { SoDB::init(); }
};

TEST_F(NumbersWidgetTest, whatIsTypedCountsWithReturn)
{
    Numbers<SoSFFloat> numbers;
    numbers.show(0.1f);
    EXPECT_EQ(QString("0.1"), numbers.text(0));
    numbers.type(0, "2.75");
    EXPECT_EQ(0, numbers.edits);
    QTest::keyClick(numbers.box(0), Qt::Key_Return);
    EXPECT_EQ(1, numbers.edits);
    EXPECT_EQ(2.75f, numbers.last.getValue());
}

TEST_F(NumbersWidgetTest, whatIsTypedCountsWhenTheFocusGoes)
{
    Numbers<SoSFVec3f> numbers;
    numbers.show(SbVec3f(1, 2, 3));
    numbers.type(1, "7");
    QTest::keyClick(numbers.box(1), Qt::Key_Tab);
    EXPECT_EQ(SbVec3f(1, 7, 3), numbers.last.getValue());
}

TEST_F(NumbersWidgetTest, aTextThatIsNoNumberIsMarkedAndNotApplied)
{
    Numbers<SoSFFloat> numbers;
    numbers.show(1);
    numbers.type(0, "1x");
    EXPECT_EQ(QString("\"1x\" is not a number."), numbers.problem);
    EXPECT_EQ(numbers.problem, numbers.box(0)->toolTip());
    QTest::keyClick(numbers.box(0), Qt::Key_Return);
    EXPECT_EQ(0, numbers.edits);
    EXPECT_EQ(QString("1x"), numbers.text(0));
    QTest::keyClick(numbers.box(0), Qt::Key_Escape);
    EXPECT_EQ(QString("1"), numbers.text(0));
    EXPECT_EQ(QString(), numbers.problem);
}

TEST_F(NumbersWidgetTest, aChangeOfTheHostLeavesWhatIsTyped)
{
    Numbers<SoSFVec3f> numbers;
    numbers.show(SbVec3f(1, 2, 3));
    numbers.type(0, "55");
    SoSFVec3f changed;
    changed.setValue(SbVec3f(4, 5, 6));
    numbers.widget.showValue(changed);
    EXPECT_EQ(QString("55"), numbers.text(0));
    EXPECT_EQ(QString("5"), numbers.text(1));
    QTest::keyClick(numbers.box(0), Qt::Key_Return);
    EXPECT_EQ(SbVec3f(55, 5, 6), numbers.last.getValue());
}

struct Step {
    const char* name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    float single;
    int whole;
};

class NumberStep : public testing::TestWithParam<Step> {};

TEST_P(NumberStep, dependsOnTheModifier)
{
    SoDB::init();
    const Step& step = GetParam();
    Numbers<SoSFFloat> single;
    single.show(20);
    single.box(0)->setFocus();
    QTest::keyClick(single.box(0), step.key, step.modifiers);
    EXPECT_EQ(step.single, single.last.getValue());
    Numbers<SoSFShort> whole;
    whole.show(20);
    whole.box(0)->setFocus();
    QTest::keyClick(whole.box(0), step.key, step.modifiers);
    EXPECT_EQ(step.whole, whole.last.getValue());
}

INSTANTIATE_TEST_SUITE_P(Keys, NumberStep,
                         testing::Values(Step{"up", Qt::Key_Up, Qt::NoModifier, 21, 21},
                                         Step{"down", Qt::Key_Down, Qt::NoModifier, 19, 19},
                                         Step{"coarse", Qt::Key_Up, Qt::ShiftModifier, 30, 30},
                                         Step{"fine", Qt::Key_Down, Qt::AltModifier, 19.9f, 19}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(NumbersWidgetTest, stepsEndAtWhatTheTypeHolds)
{
    Numbers<SoSFShort> numbers;
    numbers.show(32765);
    numbers.box(0)->setFocus();
    QTest::keyClick(numbers.box(0), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(32767, numbers.last.getValue());
}

TEST_F(NumbersWidgetTest, aHeldKeyIsOneGesture)
{
    Numbers<SoSFFloat> numbers;
    numbers.show(0);
    numbers.box(0)->setFocus();
    QSignalSpy begun(&numbers.widget, &ValueWidget::gestureBegun);
    QSignalSpy ended(&numbers.widget, &ValueWidget::gestureEnded);
    QTest::keyPress(numbers.box(0), Qt::Key_Up);
    QTest::keyPress(numbers.box(0), Qt::Key_Up);
    QTest::keyPress(numbers.box(0), Qt::Key_Up);
    EXPECT_EQ(1, begun.count());
    EXPECT_EQ(0, ended.count());
    QTest::keyRelease(numbers.box(0), Qt::Key_Up);
    EXPECT_EQ(1, ended.count());
    EXPECT_EQ(3, numbers.last.getValue());
}

TEST_F(NumbersWidgetTest, draggingANameChangesItsNumberInOneGesture)
{
    Numbers<SoSFVec3f> numbers;
    numbers.show(SbVec3f(1, 2, 3));
    QSignalSpy begun(&numbers.widget, &ValueWidget::gestureBegun);
    QSignalSpy ended(&numbers.widget, &ValueWidget::gestureEnded);
    auto* const label = numbers.widget.findChildren<DragLabel*>()[1];
    const QPoint start = label->rect().center();
    QTest::mousePress(label, Qt::LeftButton, {}, start);
    for (const int pixels : {10, 20, 40})
        moveMouse(*label, start + QPoint(pixels, 0));
    EXPECT_EQ(SbVec3f(1, 4, 3), numbers.last.getValue());
    moveMouse(*label, start - QPoint(20, 0));
    QTest::mouseRelease(label, Qt::LeftButton, {}, start - QPoint(20, 0));
    EXPECT_EQ(SbVec3f(1, 1, 3), numbers.last.getValue());
    EXPECT_EQ(1, begun.count());
    EXPECT_EQ(1, ended.count());
}

TEST_F(NumbersWidgetTest, linkedComponentsKeepTheirProportions)
{
    Numbers<SoSFVec3f> numbers;
    numbers.show(SbVec3f(1, 2, 4));
    QTest::mouseClick(numbers.button("Link"), Qt::LeftButton);
    numbers.type(0, "0");
    QTest::keyClick(numbers.box(0), Qt::Key_Return);
    EXPECT_EQ(SbVec3f(0, 0, 0), numbers.last.getValue());
    numbers.type(0, "3");
    QTest::keyClick(numbers.box(0), Qt::Key_Return);
    EXPECT_EQ(SbVec3f(3, 6, 12), numbers.last.getValue());
}

TEST_F(NumbersWidgetTest, aVectorIsNormalized)
{
    Numbers<SoSFVec3f> numbers;
    numbers.show(SbVec3f(0, 3, 4));
    QTest::mouseClick(numbers.button("Normalize"), Qt::LeftButton);
    EXPECT_EQ(SbVec3f(0, 0.6f, 0.8f), numbers.last.getValue());
    numbers.show(SbVec3f(0, 0, 0));
    EXPECT_FALSE(numbers.button("Normalize")->isEnabled());
}

TEST_F(NumbersWidgetTest, aKnownRangeHasASlider)
{
    Numbers<SoSFFloat> numbers;
    auto* const slider = numbers.widget.findChild<QSlider*>();
    const ValueRange range{0, 2};
    numbers.widget.setRange(&range);
    numbers.show(0.5f);
    EXPECT_TRUE(slider->isVisible());
    EXPECT_EQ(slider->maximum() / 4, slider->value());
    EXPECT_EQ(0, numbers.edits);
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(2, numbers.last.getValue());
    numbers.widget.setRange(nullptr);
    EXPECT_FALSE(slider->isVisible());
}

TEST_F(NumbersWidgetTest, whatIsReadOnlyDoesNotChange)
{
    Numbers<SoSFVec3f> numbers;
    numbers.widget.setReadOnly(true);
    numbers.show(SbVec3f(1, 2, 3));
    numbers.box(0)->setFocus();
    QTest::keyClick(numbers.box(0), Qt::Key_Up);
    QTest::keyClicks(numbers.box(0), "5\r");
    QTest::mouseClick(numbers.button("Normalize"), Qt::LeftButton);
    EXPECT_EQ(0, numbers.edits);
    EXPECT_EQ(QString("1"), numbers.text(0));
}

} // namespace
