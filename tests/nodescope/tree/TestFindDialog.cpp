#include <nodescope/tree/NodeSearch.h>
#include <nodescope/tree/NscFindDialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace NodeSearch;

namespace {

class FindDialog : public testing::Test {
protected:
    FindDialog()
    {
        m_box.setEditable(true);
        m_box.setEditText("from the bar");
    }

    template <class Widget>
    Widget& child(const char* text)
    {
        for (auto* each : m_dialog.findChildren<Widget*>()) {
            if (each->text() == text)
                return *each;
        }
        throw std::runtime_error(std::string("no widget with the text ") + text);
    }
    QComboBox& what() { return *m_dialog.findChild<QComboBox*>(); }

    QComboBox m_box;
    NscFindDialog m_dialog{&m_box, nullptr};
};

template <class Widget>
std::string textsIn(const QLayout& layout)
{
    QStringList texts;
    for (int i = 0; i < layout.count(); ++i) {
        if (auto* widget = qobject_cast<Widget*>(layout.itemAt(i)->widget()))
            texts << widget->text();
        else
            texts << (layout.itemAt(i)->spacerItem() ? "|" : "?");
    }
    return texts.join(", ").toStdString();
}

} // namespace

TEST_F(FindDialog, IsLaidOutFromTopToBottom)
{
    EXPECT_EQ(m_dialog.windowTitle(), "Find");
    EXPECT_FALSE(m_dialog.isModal());
    const QLayout& layout = *m_dialog.layout();
    ASSERT_EQ(layout.count(), 4);
    const auto* whatGroup = qobject_cast<QGroupBox*>(layout.itemAt(0)->widget());
    ASSERT_TRUE(whatGroup);
    EXPECT_EQ(whatGroup->title(), "Find What");
    EXPECT_EQ(whatGroup->layout()->itemAt(0)->widget(), &what());
    EXPECT_TRUE(what().isEditable());
    EXPECT_FALSE(what().duplicatesEnabled());
    EXPECT_EQ(m_dialog.focusProxy(), &what());
    EXPECT_EQ(textsIn<QRadioButton>(*whatGroup->layout()->itemAt(1)->layout()),
              "By Type, By Name, By Address, By Id, |");
    const auto* options = qobject_cast<QGroupBox*>(layout.itemAt(1)->widget());
    ASSERT_TRUE(options);
    EXPECT_EQ(options->title(), "Find Options");
    EXPECT_EQ(textsIn<QCheckBox>(*options->layout()), "Backward, Case Sensitive, Exact Match");
    EXPECT_TRUE(layout.itemAt(2)->spacerItem());
    EXPECT_EQ(textsIn<QPushButton>(*layout.itemAt(3)->layout()), "|, Find, Cancel");
}

TEST_F(FindDialog, ItsSlotsCanBeReachedByName)
{
    QStringList names;
    for (int i = m_dialog.metaObject()->methodOffset(); i < m_dialog.metaObject()->methodCount(); ++i) {
        if (m_dialog.metaObject()->method(i).methodType() == QMetaMethod::Slot)
            names << m_dialog.metaObject()->method(i).methodSignature();
    }
    EXPECT_EQ(names.join(" ").toStdString(), "setFlags(int) setColumn(int) setText(QString) setFocus()");
}

TEST_F(FindDialog, TheColumnIsTheCheckedButton)
{
    EXPECT_EQ(m_dialog.column(), ByType);
    m_dialog.show();
    const char* texts[] = {"By Type", "By Name", "By Address", "By Id"};
    for (const int column : {1, 3, 2, 0}) {
        QTest::mouseClick(&child<QRadioButton>(texts[column]), Qt::LeftButton);
        EXPECT_EQ(m_dialog.column(), column);
        m_dialog.setColumn(3 - column);
        EXPECT_TRUE(child<QRadioButton>(texts[3 - column]).isChecked());
    }
    m_dialog.setColumn(2);
    for (const int none : {-1, 4, 1000})
        m_dialog.setColumn(none);
    EXPECT_EQ(m_dialog.column(), ByAddress);
}

TEST_F(FindDialog, TheFlagsAreTheCheckedBoxes)
{
    EXPECT_EQ(m_dialog.flags(), 0);
    m_dialog.show();
    QTest::keyClick(&child<QCheckBox>("Case Sensitive"), Qt::Key_Space);
    EXPECT_EQ(m_dialog.flags(), CaseSensitive);
    QTest::keyClick(&child<QCheckBox>("Backward"), Qt::Key_Space);
    EXPECT_EQ(m_dialog.flags(), CaseSensitive | Backward);
    m_dialog.setFlags(ExactMatch);
    EXPECT_FALSE(child<QCheckBox>("Backward").isChecked());
    EXPECT_TRUE(child<QCheckBox>("Exact Match").isChecked());
    for (int flags = 7; flags >= 0; --flags) {
        m_dialog.setFlags(flags);
        EXPECT_EQ(m_dialog.flags(), flags);
    }
}

TEST_F(FindDialog, TakesOverTheTextOfTheFindBoxAndGivesItBack)
{
    m_dialog.show();
    EXPECT_EQ(m_dialog.text(), "from the bar");
    EXPECT_FALSE(m_box.isEnabled());
    m_dialog.setText("cube");
    QTest::mouseClick(&child<QPushButton>("Cancel"), Qt::LeftButton);
    EXPECT_FALSE(m_dialog.isVisible());
    EXPECT_EQ(m_box.currentText(), "cube");
    EXPECT_TRUE(m_box.isEnabled());

    m_box.setEditText("cone");
    m_dialog.show();
    EXPECT_EQ(m_dialog.text(), "cone");
    m_dialog.setText("torus");
    EXPECT_TRUE(m_dialog.close());
    EXPECT_EQ(m_box.currentText(), "torus");

    m_dialog.show();
    QTest::keyClick(&m_dialog, Qt::Key_Escape);
    EXPECT_FALSE(m_dialog.isVisible());
    EXPECT_TRUE(m_box.isEnabled()) << "escape closes, too";
}

TEST_F(FindDialog, SettingsSurviveHiding)
{
    m_dialog.show();
    m_dialog.setColumn(ByName);
    m_dialog.setFlags(Backward | ExactMatch);
    m_dialog.close();
    EXPECT_EQ(m_dialog.column(), ByName);
    EXPECT_EQ(m_dialog.flags(), Backward | ExactMatch);
    m_dialog.show();
    EXPECT_EQ(m_dialog.column(), ByName);
}

TEST_F(FindDialog, TheKeyboardGoesToTheSelectedText)
{
    m_dialog.show();
    QApplication::setActiveWindow(&m_dialog);
    m_dialog.setFocus();
    EXPECT_TRUE(what().hasFocus() || what().lineEdit()->hasFocus());
    EXPECT_EQ(what().lineEdit()->selectedText(), "from the bar");
    QTest::keyClicks(&what(), "light");
    EXPECT_EQ(m_dialog.text(), "light");
}

TEST_F(FindDialog, FindIsAskedForByButtonAndReturnKey)
{
    QSignalSpy asked(&m_dialog, &NscFindDialog::findRequested);
    m_dialog.show();
    QTest::mouseClick(&child<QPushButton>("Find"), Qt::LeftButton);
    EXPECT_EQ(asked.size(), 1);
    QTest::keyClick(&what(), Qt::Key_Return);
    EXPECT_EQ(asked.size(), 2);
    EXPECT_TRUE(m_dialog.isVisible());
}
