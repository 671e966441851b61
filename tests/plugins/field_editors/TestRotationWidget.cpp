#include "WidgetFixture.h"

#include <plugins/field_editors/values/EulerAngles.h>
#include <plugins/field_editors/values/RotationHandle.h>
#include <plugins/field_editors/values/RotationWidget.h>

#include <cmath>
#include <random>

namespace {

enum Box { AxisX, AxisY, AxisZ, Degrees, Radians, EulerX, EulerY, EulerZ };

const float Half_turn = float(std::acos(-1.0));

class RotationWidgetTest : public testing::Test {
protected:
    RotationWidgetTest() { SoDB::init(); }

    ShownWidget<RotationWidget, SoSFRotation> m_shown;
};

TEST_F(RotationWidgetTest, showsAllThatStandsForTheRotation)
{
    m_shown.show(SbRotation(SbVec3f(1, 0, 0), Half_turn / 2));
    EXPECT_EQ(QString("1"), m_shown.text(AxisX));
    EXPECT_NEAR(90, m_shown.box(Degrees)->value(), 1e-4);
    EXPECT_NEAR(1.570796, m_shown.box(Radians)->value(), 1e-5);
    EXPECT_NEAR(90, m_shown.box(EulerX)->value(), 1e-4);
    EXPECT_NEAR(0, m_shown.box(EulerZ)->value(), 1e-4);
}

TEST_F(RotationWidgetTest, anAngleIsTypedInDegrees)
{
    m_shown.show(SbRotation(SbVec3f(0, 1, 0), 1));
    m_shown.enter(Degrees, "180");
    EXPECT_TRUE(m_shown.last.getValue().equals(SbRotation(SbVec3f(0, 1, 0), Half_turn), 1e-6f));
    EXPECT_NEAR(3.141593, m_shown.box(Radians)->value(), 1e-5);
}

TEST_F(RotationWidgetTest, anAxisOfAnyLengthStaysAsItIsTyped)
{
    m_shown.show(SbRotation(SbVec3f(0, 0, 1), 1));
    m_shown.enter(AxisX, "1");
    EXPECT_EQ(QString("1"), m_shown.text(AxisX));
    EXPECT_EQ(QString("1"), m_shown.text(AxisZ));
    EXPECT_TRUE(m_shown.last.getValue().equals(SbRotation(SbVec3f(1, 0, 1), 1), 1e-6f));
    m_shown.enter(AxisZ, "0");
    EXPECT_TRUE(m_shown.last.getValue().equals(SbRotation(SbVec3f(1, 0, 0), 1), 1e-6f));
}

TEST_F(RotationWidgetTest, anAxisOfNoLengthIsWaitedOut)
{
    m_shown.show(SbRotation(SbVec3f(0, 0, 1), 1));
    m_shown.enter(AxisZ, "0");
    EXPECT_EQ(0, m_shown.edits);
    m_shown.enter(AxisY, "2");
    EXPECT_TRUE(m_shown.last.getValue().equals(SbRotation(SbVec3f(0, 1, 0), 1), 1e-6f));
}

TEST_F(RotationWidgetTest, threeAnglesAreTyped)
{
    m_shown.show(SbRotation());
    m_shown.enter(EulerX, "90");
    m_shown.enter(EulerZ, "90");
    SbVec3f turned;
    m_shown.last.getValue().multVec(SbVec3f(0, 0, 1), turned); // about x to -y, about z to x
    EXPECT_TRUE(turned.equals(SbVec3f(1, 0, 0), 1e-6f));
    EXPECT_EQ(QString("90"), m_shown.text(EulerX));
}

TEST_F(RotationWidgetTest, theBallIsDraggedInOneGesture)
{
    m_shown.show(SbRotation());
    QSignalSpy begun(&m_shown.widget, &ValueWidget::gestureBegun);
    QSignalSpy ended(&m_shown.widget, &ValueWidget::gestureEnded);
    auto* const handle = m_shown.widget.findChild<RotationHandle*>();
    const QPoint middle = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, {}, middle);
    for (int pixels = 1; pixels <= 20; ++pixels)
        moveMouse(*handle, middle + QPoint(pixels, 0));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, middle + QPoint(20, 0));
    EXPECT_EQ(20, m_shown.edits);
    EXPECT_EQ(1, begun.count());
    EXPECT_EQ(1, ended.count());
    SbVec3f axis;
    float angle = 0;
    m_shown.last.getValue().getValue(axis, angle);
    EXPECT_TRUE(axis.equals(SbVec3f(0, 1, 0), 0.05f)); // to the right: about the axis that points up
    EXPECT_GT(angle, 0.2f);
}

TEST_F(RotationWidgetTest, aReadOnlyBallStays)
{
    m_shown.widget.setReadOnly(true);
    m_shown.show(SbRotation());
    auto* const handle = m_shown.widget.findChild<RotationHandle*>();
    QTest::mousePress(handle, Qt::LeftButton);
    moveMouse(*handle, QPoint(5, 5));
    EXPECT_EQ(0, m_shown.edits);
}

TEST(EulerAngles, giveTheRotationBack)
{
    std::mt19937 random(20);
    std::uniform_real_distribution<float> number(-1, 1);
    for (int i = 0; i < 1000; ++i) {
        const SbRotation rotation(number(random), number(random), number(random), number(random));
        EXPECT_TRUE(EulerAngles::toRotation(EulerAngles::fromRotation(rotation)).equals(rotation, 1e-3f)) << i;
    }
    for (const float y : {90.0f, -90.0f}) {
        const SbRotation locked = EulerAngles::toRotation(SbVec3f(30, y, 50));
        EXPECT_TRUE(EulerAngles::toRotation(EulerAngles::fromRotation(locked)).equals(locked, 1e-3f)) << y;
    }
}

} // namespace
