#include "ShownWidget.h"

#include <plugins/field_editors/values/BitMaskWidget.h>

#include <QCheckBox>
#include <QPushButton>

namespace {

constexpr SoEnumEntry Parts[] = {{"SIDES", 1}, {"TOP", 2}, {"BOTTOM", 4}, {"LID", 2},
                                 {"ENDS", 6},  {"ALL", 7}, {"NOTHING", 0}};
constexpr SoEnumEntry Styles[] = {{"BOLD", 1}, {"ITALIC", 2}};
constexpr SoEnumEntry Single[] = {{"ONLY", 8}};

class Mask : public ShownWidget<BitMaskWidget, SoSFBitMask> {
public:
    void show(int value, const EnumTable& table = Parts) { showField(SoSFBitMask(nullptr, nullptr, value, table)); }
    QList<QCheckBox*> boxes()
    {
        QList<QCheckBox*> visible;
        for (QCheckBox* box : widget.findChildren<QCheckBox*>()) {
            if (box->isVisible())
                visible += box;
        }
        return visible;
    }
    /** Each row with "+" when it is checked, "/" in part, "-" not. */
    std::string rows()
    {
        QStringList texts;
        for (const QCheckBox* box : boxes()) {
            const char* const marks[] = {"-", "/", "+"};
            texts += marks[box->checkState()] + box->text();
        }
        return texts.join(' ').toStdString();
    }
    void click(const QString& name)
    {
        for (QCheckBox* box : boxes()) {
            if (box->text() == name)
                return QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        }
        ADD_FAILURE() << "no row " << name.toStdString();
    }
    void push(const QString& name)
    {
        for (QPushButton* button : widget.findChildren<QPushButton*>()) {
            if (button->text() == name)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    std::string fileText() { return last.SoField::get().toUtf8().toStdString(); }
};

TEST(BitMaskWidgetTest, hasARowForEachFlagAndEachNameForSome)
{
    Mask shown;
    shown.show(0);
    EXPECT_EQ("-SIDES -TOP -BOTTOM -ENDS", shown.rows());
    shown.show(3);
    EXPECT_EQ("+SIDES +TOP -BOTTOM /ENDS", shown.rows());
    shown.show(6);
    EXPECT_EQ("-SIDES +TOP +BOTTOM +ENDS", shown.rows());
    shown.show(2, Styles);
    EXPECT_EQ("-BOLD +ITALIC", shown.rows());
    shown.show(8, Single);
    EXPECT_EQ("+ONLY", shown.rows());
    EXPECT_EQ(0, shown.edits);
}

TEST(BitMaskWidgetTest, rowsSwitchTheirFlags)
{
    Mask shown;
    shown.show(1);
    shown.click("TOP");
    EXPECT_EQ(3, shown.last.getValue());
    EXPECT_EQ("( SIDES | TOP )", shown.fileText());
    shown.click("SIDES");
    EXPECT_EQ(2, shown.last.getValue());
    EXPECT_EQ("-SIDES +TOP -BOTTOM /ENDS", shown.rows());
    shown.click("ENDS");
    EXPECT_EQ(6, shown.last.getValue());
    EXPECT_EQ("-SIDES +TOP +BOTTOM +ENDS", shown.rows());
    shown.click("ENDS");
    EXPECT_EQ(0, shown.last.getValue());
    EXPECT_EQ("-SIDES -TOP -BOTTOM -ENDS", shown.rows());
    EXPECT_EQ(4, shown.edits);
}

TEST(BitMaskWidgetTest, buttonsSetAllAndNone)
{
    Mask shown;
    shown.show(2);
    shown.push("ALL");
    EXPECT_EQ("ALL", shown.fileText());
    EXPECT_EQ("+SIDES +TOP +BOTTOM +ENDS", shown.rows());
    shown.push("ALL");
    EXPECT_EQ(1, shown.edits) << "nothing to do";
    shown.push("NONE");
    EXPECT_EQ(0, shown.last.getValue());
    EXPECT_EQ(2, shown.edits);
}

TEST(BitMaskWidgetTest, bitsWithoutANameAreKeptAndHaveARow)
{
    Mask shown;
    shown.show(0x51);
    EXPECT_EQ("+SIDES -TOP -BOTTOM -ENDS +0x50", shown.rows());
    shown.click("TOP");
    EXPECT_EQ(0x53, shown.last.getValue());
    shown.push("ALL");
    EXPECT_EQ(0x57, shown.last.getValue());
    shown.click("0x50");
    EXPECT_EQ(7, shown.last.getValue());
    EXPECT_EQ("+SIDES +TOP +BOTTOM +ENDS", shown.rows());
    shown.show(int(0x80000001));
    EXPECT_EQ("+SIDES -TOP -BOTTOM -ENDS +0x80000000", shown.rows());
    shown.push("NONE");
    EXPECT_EQ(0, shown.last.getValue());
}

TEST(BitMaskWidgetTest, keysReachEachRow)
{
    Mask shown;
    shown.show(0);
    shown.boxes()[0]->setFocus();
    shown.press(Qt::Key_Tab);
    shown.press(Qt::Key_Space);
    EXPECT_EQ(2, shown.last.getValue());
    shown.press(Qt::Key_Tab);
    shown.press(Qt::Key_Tab);
    shown.press(Qt::Key_Tab);
    shown.press(Qt::Key_Space);
    EXPECT_EQ(7, shown.last.getValue()) << "the button ALL follows the rows";
}

TEST(BitMaskWidgetTest, isDimmedWhenItCannotBeEdited)
{
    Mask shown;
    shown.widget.setReadOnly(true);
    shown.show(0x51);
    for (QCheckBox* box : shown.boxes())
        EXPECT_FALSE(box->isEnabled()) << box->text().toStdString();
    shown.push("ALL");
    EXPECT_EQ(0, shown.edits);
    shown.widget.setReadOnly(false);
    shown.click("TOP");
    EXPECT_EQ(1, shown.edits);
}

} // namespace
