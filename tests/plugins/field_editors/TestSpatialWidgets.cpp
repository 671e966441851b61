#include "WidgetFixture.h"

#include <plugins/field_editors/values/BoxWidget.h>
#include <plugins/field_editors/values/MatrixWidget.h>
#include <plugins/field_editors/values/PlaneWidget.h>
#include <vexel/fields/SoSFBox2f.h>
#include <vexel/fields/SoSFBox3s.h>

#include <QLabel>

#include <limits>

namespace {

class SpatialWidgets : public testing::Test {
protected:
    SpatialWidgets() { SoDB::init(); }

    static bool shows(const QWidget& widget, const QString& text)
    {
        for (const QLabel* label : widget.findChildren<QLabel*>()) {
            if (label->isVisible() && label->text() == text)
                return true;
        }
        return false;
    }
};

// Sixteen boxes of the matrix's elements, then three rows of translation, angle and scale.
constexpr int First_part = 16;
constexpr const char* Singular = "The matrix is singular: it flattens space and has no inverse.";

TEST_F(SpatialWidgets, aMatrixIsTypedByElements)
{
    ShownWidget<MatrixWidget, SoSFMatrix> shown;
    shown.show(SbMatrix());
    shown.enter(12, "5");
    SbMatrix expected;
    expected.setTranslate(SbVec3f(5, 0, 0));
    EXPECT_EQ(expected, shown.last.getValue());
    EXPECT_EQ(5, shown.box(First_part)->value());
}

TEST_F(SpatialWidgets, aMatrixIsTypedByWhatItDoes)
{
    ShownWidget<MatrixWidget, SoSFMatrix> shown;
    shown.show(SbMatrix());
    shown.enter(First_part + 2, "2");
    shown.enter(First_part + 7, "90");
    shown.enter(First_part, "7");
    SbMatrix expected;
    expected.setTransform(SbVec3f(7, 0, 0), SbRotation(SbVec3f(0, 0, 1), 1.57079633f), SbVec3f(2, 1, 1));
    EXPECT_TRUE(expected.equals(shown.last.getValue(), 1e-5f));
    EXPECT_NEAR(2, shown.box(First_part + 2)->value(), 1e-5);
}

TEST_F(SpatialWidgets, aSingularMatrixIsWarnedOf)
{
    ShownWidget<MatrixWidget, SoSFMatrix> shown;
    shown.show(SbMatrix());
    EXPECT_FALSE(shows(shown.widget, Singular));
    shown.enter(0, "0");
    EXPECT_EQ(1, shown.edits);
    EXPECT_TRUE(shows(shown.widget, Singular));
    shown.enter(0, "-1");
    EXPECT_FALSE(shows(shown.widget, Singular));
    EXPECT_EQ(-1, shown.last.getValue()[0][0]);
}

TEST_F(SpatialWidgets, aProjectionIsTold)
{
    ShownWidget<MatrixWidget, SoSFMatrix> shown;
    shown.show(SbMatrix());
    shown.enter(3, "0.5");
    EXPECT_TRUE(shows(shown.widget, "The fourth column projects; translation, rotation and scale leave it out."));
}

TEST_F(SpatialWidgets, theNormalOfAPlaneStaysAsItIsTyped)
{
    ShownWidget<PlaneWidget, SoSFPlane> shown;
    shown.show(SbPlane(SbVec3f(0, 0, 1), 3));
    shown.enter(0, "1");
    EXPECT_EQ(SbPlane(SbVec3f(1, 0, 1), 3), shown.last.getValue());
    shown.widget.showValue(shown.last); // as the field tells it
    EXPECT_EQ(QString("1"), shown.text(0));
    shown.enter(3, "-2.5");
    EXPECT_EQ(SbPlane(SbVec3f(1, 0, 1), -2.5f), shown.last.getValue());
    shown.show(SbPlane(SbVec3f(0, 2, 0), 1));
    EXPECT_EQ(QString("0"), shown.text(0));
    EXPECT_EQ(QString("1"), shown.text(1));
}

TEST_F(SpatialWidgets, aPlaneIsFlipped)
{
    ShownWidget<PlaneWidget, SoSFPlane> shown;
    shown.show(SbPlane(SbVec3f(0, 1, 0), 3));
    shown.press("Flip");
    EXPECT_EQ(SbPlane(SbVec3f(0, -1, 0), -3), shown.last.getValue());
    EXPECT_EQ(QString("-1"), shown.text(1));
}

TEST_F(SpatialWidgets, aBoxIsTypedByItsEnds)
{
    ShownWidget<BoxWidget, SoSFBox2f> shown(NumberAccess::of<SoSFBox2f>());
    shown.show(SbBox2f(SbVec2f(0, 1), SbVec2f(2, 3)));
    EXPECT_TRUE(shows(shown.widget, "Size 2 x 2, middle 1 2"));
    shown.enter(1, "4");
    EXPECT_EQ(SbVec2f(4, 3), shown.last.getValue().getMax());
    EXPECT_EQ(SbVec2f(0, 1), shown.last.getValue().getMin());
    EXPECT_TRUE(shows(shown.widget, "Size 4 x 2, middle 2 2"));
}

TEST_F(SpatialWidgets, anEmptyBoxIsTold)
{
    ShownWidget<BoxWidget, SoSFBox3s> shown(NumberAccess::of<SoSFBox3s>());
    shown.show(SbBox3s(SbVec3s(0, 0, 0), SbVec3s(1, 2, 3)));
    EXPECT_TRUE(shows(shown.widget, "Size 1 x 2 x 3, middle 0.5 1 1.5"));
    shown.press("Make Empty");
    EXPECT_TRUE(shown.last.getValue().isEmpty());
    EXPECT_TRUE(shows(shown.widget, "The box is empty."));
    EXPECT_EQ(double(std::numeric_limits<short>::max()), shown.box(0)->value());
    shown.type(0, "40000");
    EXPECT_EQ(QString("40000 is not between -32768 and 32767."), shown.problem);
}

} // namespace
