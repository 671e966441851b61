#include <nodescope/edit/SoNodescopeAddDialog.h>
#include <nodescope/tree/NscNodeInfo.h>
#include <nodescope/tree/SoNodescopeTreeView.h>

#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoNode.h>

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class AddDialog : public testing::Test {
protected:
    AddDialog()
    {
        m_dialog.show();
        QApplication::setActiveWindow(&m_dialog);
    }

    QTreeWidget& types() { return *m_dialog.findChild<QTreeWidget*>(); }
    QLineEdit& searchText() { return *m_dialog.findChild<QLineEdit*>(); }
    QPushButton& button(const char* text)
    {
        for (auto* each : m_dialog.findChildren<QPushButton*>()) {
            if (each->text() == text)
                return *each;
        }
        throw std::runtime_error("no such button");
    }
    QTreeWidgetItem* category(const char* name)
    {
        for (int i = 0; i < types().topLevelItemCount(); ++i) {
            if (types().topLevelItem(i)->text(0) == name)
                return types().topLevelItem(i);
        }
        return nullptr;
    }
    /** All types below categories, in the order of the list. */
    QStringList listedTypes()
    {
        QStringList names;
        for (int i = 0; i < types().topLevelItemCount(); ++i) {
            for (int k = 0; k < types().topLevelItem(i)->childCount(); ++k)
                names << types().topLevelItem(i)->child(k)->text(0);
        }
        return names;
    }
    QString current() { return types().currentItem() ? types().currentItem()->text(0) : QString(); }
    /** Double-clicks the current item. */
    void doubleClickCurrent()
    {
        types().scrollToItem(types().currentItem());
        const QPoint place = types().visualItemRect(types().currentItem()).center();
        QTest::mouseClick(types().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(types().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    struct Toolkit {
        Toolkit() { SoDB::init(); }
    } m_toolkit;
    SoNodescopeTreeView m_view;
    QSignalSpy m_inserted{&m_view, &SoNodescopeTreeView::insertRequested};
    SoNodescopeAddDialog m_dialog{m_view, nullptr};
};

} // namespace

TEST_F(AddDialog, IsLaidOutFromTopToBottom)
{
    EXPECT_EQ(m_dialog.windowTitle(), "Add Nodes");
    EXPECT_FALSE(m_dialog.windowIcon().isNull());
    const QLayout& layout = *m_dialog.layout();
    EXPECT_EQ(layout.contentsMargins(), QMargins(9, 9, 9, 9));
    EXPECT_EQ(layout.spacing(), 6);
    const QLayout& inner = *layout.itemAt(0)->layout();
    EXPECT_EQ(inner.spacing(), 0);
    EXPECT_EQ(inner.itemAt(0)->widget(), &types());
    const QLayout& search = *inner.itemAt(1)->widget()->layout();
    EXPECT_EQ(search.spacing(), 6);
    const auto* picture = qobject_cast<QLabel*>(search.itemAt(0)->widget());
    ASSERT_TRUE(picture);
    EXPECT_FALSE(picture->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(search.itemAt(1)->widget(), &searchText());
    EXPECT_FALSE(searchText().hasFrame());
    const QLayout& buttons = *layout.itemAt(1)->layout();
    EXPECT_TRUE(buttons.itemAt(0)->spacerItem());
    EXPECT_EQ(buttons.itemAt(1)->widget(), &button("&Add"));
    EXPECT_EQ(buttons.itemAt(2)->widget(), &button("&Cancel"));
    EXPECT_EQ(types().columnCount(), 1);
    EXPECT_EQ(types().headerItem()->text(0), "Type");
    EXPECT_TRUE(types().isHeaderHidden());
    EXPECT_TRUE(types().rootIsDecorated());
}

TEST_F(AddDialog, HasTheCategoriesInOrderWithIcons)
{
    QStringList names;
    for (int i = 0; i < types().topLevelItemCount(); ++i) {
        names << types().topLevelItem(i)->text(0);
        EXPECT_FALSE(types().topLevelItem(i)->icon(0).isNull()) << names.last().toStdString();
    }
    EXPECT_EQ(names.join(" ").toStdString(), "Appearance Callback Camera Dragger Group Light Manipulator NodeKit "
                                             "Property Selection Separator Shape Switch Topology Transform");
}

TEST_F(AddDialog, ListsEveryTypeThatCanBeMadeUnderItsCategory)
{
    const QStringList listed = listedTypes();
    int numTypes = 0;
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        const QString name = QString::fromLatin1(type.getName().getString());
        const bool isOffered = type.canCreateInstance() && !name.startsWith("Unknown");
        EXPECT_EQ(listed.count(name), int(isOffered)) << name.toStdString();
        numTypes += isOffered;
        if (!isOffered)
            continue;
        const QList<QTreeWidgetItem*> found = types().findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_FALSE(found.isEmpty());
        EXPECT_EQ(found.last()->parent()->text(0).toLower(), NscNodeInfo::categoryName(type).toLower());
    }
    EXPECT_GT(numTypes, 100);
    EXPECT_EQ(listed.size(), numTypes);
    EXPECT_EQ(listed.filter(QRegularExpression("^Unknown")), QStringList());
    EXPECT_EQ(category("Camera")->child(0)->text(0), "OrthographicCamera") << "in the order of the texts";
}

TEST_F(AddDialog, OnlyATypeCanBeAdded)
{
    EXPECT_FALSE(button("&Add").isEnabled());
    types().setCurrentItem(category("Shape"));
    EXPECT_FALSE(button("&Add").isEnabled());
    types().setCurrentItem(category("Shape")->child(0));
    EXPECT_TRUE(button("&Add").isEnabled());
    QTest::mouseClick(&button("&Add"), Qt::LeftButton);
    QTest::mouseClick(&button("&Add"), Qt::LeftButton);
    ASSERT_EQ(m_inserted.size(), 2);
    EXPECT_EQ(m_inserted[0][0].toString(), category("Shape")->child(0)->text(0));
    EXPECT_TRUE(m_dialog.isVisible()) << "for the next node";
    types().setCurrentItem(category("Dragger"));
    EXPECT_FALSE(button("&Add").isEnabled());
    QTest::keyClick(&types(), Qt::Key_Return);
    doubleClickCurrent();
    EXPECT_EQ(m_inserted.size(), 2);
    QTest::mouseClick(&button("&Cancel"), Qt::LeftButton);
    EXPECT_FALSE(m_dialog.isVisible());
}

TEST_F(AddDialog, ADoubleClickOpensACategoryAndAddsAType)
{
    types().setCurrentItem(category("Light"));
    doubleClickCurrent();
    EXPECT_TRUE(category("Light")->isExpanded());
    doubleClickCurrent();
    EXPECT_FALSE(category("Light")->isExpanded());
    types().setCurrentItem(category("Light")->child(1));
    doubleClickCurrent();
    ASSERT_EQ(m_inserted.size(), 1);
    EXPECT_EQ(m_inserted[0][0].toString(), category("Light")->child(1)->text(0));
}

TEST_F(AddDialog, TypingASearchTextGoesToTheFirstTypeThatContainsIt)
{
    for (const char* text : {"OTLIGH", "otligh", "oTLigh"}) {
        types().setCurrentItem(nullptr);
        searchText().clear();
        QTest::keyClicks(&searchText(), text);
        EXPECT_EQ(current(), "SpotLight");
        EXPECT_TRUE(category("Light")->isExpanded());
    }
    searchText().clear();
    EXPECT_EQ(current(), "SpotLight") << "an empty text finds nothing";
    searchText().setText("cone");
    EXPECT_EQ(current(), "Cone");
    searchText().setText("no such type");
    EXPECT_EQ(current(), "Cone");
}

TEST_F(AddDialog, ACategoryIsNeverFound)
{
    types().setCurrentItem(category("Light"));
    for (const char* text : {"Topology", "Dragger"}) {
        const QStringList found = listedTypes().filter(text, Qt::CaseInsensitive);
        searchText().setText(text);
        EXPECT_EQ(current(), found.isEmpty() ? "Light" : found[0]);
    }
}

TEST_F(AddDialog, F3GoesFromMatchToMatchAndRound)
{
    const QStringList matches = listedTypes().filter("camera", Qt::CaseInsensitive);
    ASSERT_GT(matches.size(), 2);
    searchText().setText("camera");
    for (int i = 0; i <= matches.size(); ++i) {
        EXPECT_EQ(current(), matches[i % matches.size()]);
        QTest::keyClick(i % 2 ? static_cast<QWidget*>(&types()) : &searchText(), Qt::Key_F3);
    }
    const QString here = current();
    QTest::keyClick(&types(), Qt::Key_F3, Qt::ControlModifier);
    EXPECT_EQ(current(), here);
    types().setCurrentItem(nullptr);
    QTest::keyClick(&types(), Qt::Key_F3);
    EXPECT_EQ(current(), matches[0]);
}

TEST_F(AddDialog, F3GoesRoundFromTheLastItemOfTheList)
{
    QTreeWidgetItem* lastCategory = types().topLevelItem(types().topLevelItemCount() - 1);
    types().setCurrentItem(lastCategory->child(lastCategory->childCount() - 1));
    searchText().setText("cube");
    types().setCurrentItem(lastCategory->child(lastCategory->childCount() - 1));
    QTest::keyClick(&types(), Qt::Key_F3);
    EXPECT_EQ(current(), "Cube");
}

TEST_F(AddDialog, TypingInTheListSearches)
{
    types().setFocus();
    QTest::keyClicks(&types(), "texture2");
    EXPECT_EQ(searchText().text(), "texture2");
    EXPECT_EQ(current(), "Texture2");
    QTest::keyClick(&types(), Qt::Key_Down);
    EXPECT_EQ(searchText().text(), "texture2");
    EXPECT_NE(current(), "Texture2") << "other keys move in the list";
    QTest::keyClick(&types(), Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(&types(), Qt::Key_Minus);
    EXPECT_EQ(searchText().text(), "texture2");
}

TEST_F(AddDialog, TheReturnKeyAddsWhatWasFound)
{
    QTest::keyClicks(&searchText(), "sphere");
    QTest::keyClick(&searchText(), Qt::Key_Return);
    ASSERT_EQ(m_inserted.size(), 1);
    EXPECT_EQ(m_inserted[0][0].toString(), current());
    EXPECT_TRUE(m_dialog.isVisible());
}
