#include "EditorFixture.h"
#include "ShownWidget.h"

#include <plugins/field_editors/values/ColorSwatch.h>
#include <plugins/field_editors/values/ColorWidget.h>
#include <plugins/field_editors/values/NumberBox.h>
#include <vexel/fields/SoSFColor.h>

#include <QColorDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QTableView>
#include <limits>

namespace {

class Color : public ShownWidget<ColorWidget, SoSFColor> {
public:
    enum Channel { Red, Green, Blue, Hue, Saturation, Brightness };

    QLineEdit& line() { return *child<QLineEdit>(); }
    NumberBox& box(Channel channel) { return *child<NumberBox>(channel); }
    QSlider& slider(Channel channel) { return *child<QSlider>(channel); }
    ColorSwatch& swatch() { return *child<ColorSwatch>(); }
    std::string numbers()
    {
        QStringList all;
        for (const NumberBox* box : widget.findChildren<NumberBox*>())
            all += QString::number(box->value(), 'g', 4);
        return all.join(' ').toStdString();
    }
    void typeInto(QWidget& input, const QString& text)
    {
        input.setFocus();
        retype(text);
        press(Qt::Key_Return);
    }
    /** The colour in the middle of the swatch. */
    std::string seen()
    {
        const QImage picture = swatch().grab().toImage();
        return picture.pixelColor(picture.rect().center()).name().toStdString();
    }
    QColorDialog& openDialog()
    {
        QTest::mouseClick(&swatch(), Qt::LeftButton);
        return *child<QColorDialog>();
    }
};

TEST(ColorWidgetTest, showsAColorInAllItsForms)
{
    Color shown;
    shown.showValue(SbColor(1, 0.5f, 0));
    EXPECT_EQ("1 0.5 0 0.08333 1 1", shown.numbers());
    EXPECT_EQ("#ff8000", shown.line().text());
    EXPECT_EQ("#ff8000", shown.seen());
    EXPECT_EQ(500, shown.slider(Color::Green).value());
    EXPECT_EQ(83, shown.slider(Color::Hue).value());
    EXPECT_EQ(0, shown.edits);
}

TEST(ColorWidgetTest, numbersAreTypedAlsoOutsideOfTheSliders)
{
    Color shown;
    shown.showValue(SbColor(0, 0, 0));
    shown.typeInto(shown.box(Color::Green), "0.25");
    EXPECT_EQ(SbColor(0, 0.25f, 0), shown.last.getValue());
    shown.typeInto(shown.box(Color::Red), "2.5");
    EXPECT_EQ(SbColor(2.5f, 0.25f, 0), shown.last.getValue());
    EXPECT_EQ(1000, shown.slider(Color::Red).value());
    EXPECT_EQ("#ff4000", shown.line().text());
    shown.typeInto(shown.box(Color::Blue), "-1");
    EXPECT_EQ(SbColor(2.5f, 0.25f, -1), shown.last.getValue());
    EXPECT_EQ(3, shown.edits);
}

TEST(ColorWidgetTest, whatIsNoNumberIsBlackOnTheScreen)
{
    Color shown;
    shown.showValue(SbColor(std::numeric_limits<float>::quiet_NaN(), 1, std::numeric_limits<float>::infinity()));
    EXPECT_EQ("#00ffff", shown.seen());
    EXPECT_EQ("nan", shown.box(Color::Red).text());
    EXPECT_EQ(0, shown.slider(Color::Red).value());
    EXPECT_EQ(1000, shown.slider(Color::Blue).value());
}

TEST(ColorWidgetTest, hueSaturationAndBrightnessAreTyped)
{
    Color shown;
    shown.showValue(SbColor(1, 0, 0));
    shown.typeInto(shown.box(Color::Hue), "0.5");
    EXPECT_EQ(SbColor(0, 1, 1), shown.last.getValue());
    shown.typeInto(shown.box(Color::Saturation), "0.5");
    EXPECT_EQ(SbColor(0.5f, 1, 1), shown.last.getValue());
    shown.typeInto(shown.box(Color::Brightness), "0.5");
    EXPECT_EQ(SbColor(0.25f, 0.5f, 0.5f), shown.last.getValue());
    shown.typeInto(shown.box(Color::Hue), "1.5");
    EXPECT_EQ("1.5 is not between 0 and 1.", shown.problem);
    EXPECT_EQ(3, shown.edits);
}

TEST(ColorWidgetTest, theHueOfAGreyIsKept)
{
    Color shown;
    shown.showValue(SbColor(0, 0, 1));
    shown.typeInto(shown.box(Color::Saturation), "0");
    EXPECT_EQ(SbColor(1, 1, 1), shown.last.getValue());
    shown.widget.showValue(shown.last);
    shown.typeInto(shown.box(Color::Brightness), "0");
    shown.widget.showValue(shown.last);
    shown.typeInto(shown.box(Color::Brightness), "1");
    shown.typeInto(shown.box(Color::Saturation), "1");
    EXPECT_EQ(SbColor(0, 0, 1), shown.last.getValue());
    shown.widget.forgetInput();
    shown.widget.showValue(SoSFColor(nullptr, nullptr, SbColor(1, 1, 1)));
    EXPECT_EQ("1 1 1 0 0 1", shown.numbers()) << "another color has no hue";
}

TEST(ColorWidgetTest, aSliderIsDraggedInOneGesture)
{
    Color shown;
    shown.showValue(SbColor(0, 0, 0));
    QSlider& slider = shown.slider(Color::Red);
    const auto at = [&](double part) { return QPoint(int(slider.width() * part), slider.height() / 2); };
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(4, slider.height() / 2));
    EXPECT_EQ(QStringList("begun"), shown.gestures);
    for (const double part : {0.3, 0.7}) {
        QMouseEvent move(QEvent::MouseMove, at(part), slider.mapToGlobal(at(part)), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&slider, &move);
    }
    EXPECT_NEAR(0.7, shown.last.getValue()[0], 0.1);
    const float dragged = shown.last.getValue()[0];
    shown.widget.showValue(SoSFColor(nullptr, nullptr, SbColor(0.1f, 0.2f, 0)));
    EXPECT_NEAR(1000 * dragged, slider.value(), 1) << "the user holds it";
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, at(0.7));
    EXPECT_EQ(QStringList({"begun", "ended"}), shown.gestures);
}

TEST(ColorWidgetTest, slidersFollowTheKeyboard)
{
    Color shown;
    shown.showValue(SbColor(0.5f, 0, 0));
    shown.slider(Color::Red).setFocus();
    shown.press(Qt::Key_Right);
    EXPECT_FLOAT_EQ(0.51f, shown.last.getValue()[0]);
    shown.press(Qt::Key_PageUp);
    EXPECT_FLOAT_EQ(0.61f, shown.last.getValue()[0]);
}

struct Typed {
    const char* text;
    const char* color;
    const char* problem;
};

class HexadecimalColor : public testing::TestWithParam<Typed> {};

TEST_P(HexadecimalColor, isTakenOrMarked)
{
    Color shown;
    shown.showValue(SbColor(0, 0, 0));
    shown.typeInto(shown.line(), GetParam().text);
    EXPECT_EQ(GetParam().problem, shown.problem.toStdString());
    EXPECT_EQ(GetParam().problem, shown.line().toolTip().toStdString());
    EXPECT_EQ(GetParam().color, shown.seen());
    EXPECT_EQ(shown.problem.isEmpty() ? 1 : 0, shown.edits);
    if (shown.edits == 1) {
        EXPECT_EQ(GetParam().color, shown.line().text().toStdString());
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, HexadecimalColor,
                         testing::Values(Typed{"#336699", "#336699", ""}, Typed{" FF0080 ", "#ff0080", ""},
                                         Typed{"#AbCdEf", "#abcdef", ""},
                                         Typed{"#12345", "#000000", "A color has six hexadecimal digits, not 5."},
                                         Typed{"#1234567", "#000000", "A color has six hexadecimal digits, not 7."},
                                         Typed{"#", "#000000", "A color has six hexadecimal digits, not 0."},
                                         Typed{"#12345g", "#000000", "\"g\" is no hexadecimal digit."},
                                         Typed{"red", "#000000", "\"r\" is no hexadecimal digit."},
                                         Typed{"##12345", "#000000", "\"#\" is no hexadecimal digit."}));

TEST(ColorWidgetTest, theDialogCountsWhileTheUserChooses)
{
    Color shown;
    shown.showValue(SbColor(0, 0, 0));
    QColorDialog& dialog = shown.openDialog();
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(QColor(Qt::black), dialog.currentColor());
    dialog.setCurrentColor(QColor(255, 0, 0));
    EXPECT_EQ(SbColor(1, 0, 0), shown.last.getValue());
    dialog.setCurrentColor(QColor(0, 0, 255));
    EXPECT_EQ(SbColor(0, 0, 1), shown.last.getValue());
    EXPECT_EQ(QStringList("begun"), shown.gestures);
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_EQ(QStringList({"begun", "ended"}), shown.gestures);
}

TEST(ColorWidgetTest, cancellingTheDialogTakesEverythingBack)
{
    Color shown;
    shown.showValue(SbColor(0, 0, 0));
    QColorDialog& dialog = shown.openDialog();
    dialog.setCurrentColor(QColor(255, 0, 0));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(QStringList({"begun", "cancelled"}), shown.gestures);
}

TEST(ColorWidgetTest, theDialogClosesWithTheFieldThatItIsFor)
{
    Color shown;
    shown.showValue(SbColor(0, 0, 0));
    QPointer<QColorDialog> dialog(&shown.openDialog());
    dialog->setCurrentColor(QColor(255, 0, 0));
    shown.widget.forgetInput();
    EXPECT_FALSE(dialog && dialog->isVisible());
    EXPECT_EQ(QStringList({"begun", "ended"}), shown.gestures);
    dialog = &shown.openDialog();
    shown.widget.setReadOnly(true);
    EXPECT_FALSE(dialog && dialog->isVisible());
}

TEST(ColorWidgetTest, looksReadOnly)
{
    Color shown;
    shown.showValue(SbColor(1, 0, 0));
    shown.widget.setReadOnly(true);
    const QColor ground = shown.widget.palette().color(QPalette::Window);
    EXPECT_EQ(ground, shown.line().palette().color(QPalette::Base));
    EXPECT_EQ(ground, shown.box(Color::Red).palette().color(QPalette::Base));
    EXPECT_TRUE(shown.box(Color::Red).isReadOnly());
    EXPECT_FALSE(shown.slider(Color::Red).isEnabled());
    EXPECT_EQ("#ff0000", shown.seen());
    QTest::mouseClick(&shown.swatch(), Qt::LeftButton);
    EXPECT_FALSE(shown.child<QColorDialog>());
    EXPECT_EQ(0, shown.edits);
}

using ColorEditorTest = EditorTest;

TEST_F(ColorEditorTest, aCancelledDialogLeavesTheFieldAsItWas)
{
    addEditor("MFColor");
    auto* const material = new SoMaterial;
    m_root->addChild(material);
    const SbColor colors[] = {SbColor(1, 1, 1), SbColor(0, 1, 0)};
    material->diffuseColor.setValues(0, 2, colors);
    select(material->diffuseColor);
    auto* const table = seen<QTableView>();
    table->setCurrentIndex(table->model()->index(1, 0));
    auto* const swatch = seen<ColorSwatch>();
    QTRY_COMPARE(swatch->height(), swatch->sizeHint().height());
    const auto chosen = [&](Qt::Key answer) {
        QTest::mouseClick(swatch, Qt::LeftButton);
        auto* const dialog = swatch->findChild<QColorDialog*>();
        ASSERT_TRUE(dialog);
        dialog->setCurrentColor(QColor(255, 0, 0));
        EXPECT_EQ(SbColor(1, 0, 0), material->diffuseColor[1]);
        QTest::keyClick(dialog, answer);
        delete dialog;
    };
    chosen(Qt::Key_Escape);
    EXPECT_EQ(SbColor(0, 1, 0), material->diffuseColor[1]);
    QTRY_COMPARE(swatch->accessibleDescription(), QString("#00ff00"));
    chosen(Qt::Key_Return);
    EXPECT_EQ(SbColor(1, 0, 0), material->diffuseColor[1]);
    undo();
    EXPECT_EQ(SbColor(0, 1, 0), material->diffuseColor[1]);
    EXPECT_EQ(SbColor(1, 1, 1), material->diffuseColor[0]);
}

} // namespace
