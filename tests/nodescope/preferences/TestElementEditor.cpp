#include "PreferenceFixture.h"

#include <nodescope/preferences/SoFieldWatchPreferences.h>
#include <nodescope/preferences/SoNodeOverviewPreferences.h>
#include <nodescope/preferences/SoTreeViewPreferences.h>
#include <tests/support/ModalAnswers.h>

#include <QApplication>
#include <QColorDialog>
#include <QFontDatabase>
#include <QTest>

namespace {

class ElementEditorTest : public PreferenceTest {
protected:
    ElementEditorTest()
    {
        m_page.show();
        m_page.reInit();
    }

    template <class Control>
    Control* find(const char* name)
    {
        return m_page.findChild<Control*>(name);
    }
    QLineEdit* preview() { return find<QLineEdit>("m_editPreview"); }
    QColor previewColor(QPalette::ColorRole role) { return preview()->palette().brush(QPalette::Active, role).color(); }
    void click(const char* checkBox) { QTest::mouseClick(find<QAbstractButton>(checkBox), Qt::LeftButton, {}, {5, 5}); }
    DisplayElement stored(const char* element)
    {
        return store().loadElements(SoPreferenceStore::TreeViewGroup)[element];
    }

    SoTreeViewPreferences m_page;
};

TEST_F(ElementEditorTest, ListsTheElementsInTheirOrder)
{
    auto* list = find<QListWidget>("m_listItems");
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    EXPECT_EQ(texts.join(", "), "Node Type, Node/Part Name, Reference Count, Node From Field");
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_EQ(find<QComboBox>("m_comboFamily")->findText(QFontDatabase().families().first()), 0);
}

TEST_F(ElementEditorTest, ShowsEachChangeInThePreviewAtOnce)
{
    EXPECT_EQ(preview()->text(), "Some Text");
    click("m_checkBold");
    EXPECT_TRUE(preview()->font().bold());
    click("m_checkItalic");
    EXPECT_TRUE(preview()->font().italic());
    click("m_checkUnderline");
    EXPECT_TRUE(preview()->font().underline());
    find<QSpinBox>("m_spinSize")->setFocus();
    find<QSpinBox>("m_spinSize")->stepBy(5);
    EXPECT_EQ(preview()->font().pointSize(), QApplication::font().pointSize() + 5);
    auto* families = find<QComboBox>("m_comboFamily");
    const QString last = families->itemText(families->count() - 1);
    families->setFocus();
    QTest::keyClick(families, Qt::Key_End);
    EXPECT_EQ(preview()->font().family(), last);
    EXPECT_FALSE(stored("Node Type").font.bold()) << "nothing is stored yet";
    m_page.save();
    const QFont font = stored("Node Type").font;
    EXPECT_EQ(font.family(), last);
    EXPECT_EQ(font.pointSize(), QApplication::font().pointSize() + 5);
    EXPECT_TRUE(font.bold() && font.italic() && font.underline());
}

TEST_F(ElementEditorTest, AsksForAColour)
{
    ModalAnswers answers;
    answers.expectDialog("Select Color", [](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "editor_getcolor_dlg");
        static_cast<QColorDialog&>(dialog).setCurrentColor(QColor(12, 34, 56));
        dialog.accept();
    });
    QTest::mouseClick(find<QToolButton>("m_buttonColor"), Qt::LeftButton);
    EXPECT_EQ(previewColor(QPalette::Text), QColor(12, 34, 56));
    EXPECT_EQ(previewColor(QPalette::WindowText), QColor(12, 34, 56));
    answers.expectDialog("Select Color", [](QDialog& dialog) {
        static_cast<QColorDialog&>(dialog).setCurrentColor(Qt::red);
        dialog.reject();
    });
    QTest::mouseClick(find<QToolButton>("m_buttonColor"), Qt::LeftButton);
    EXPECT_EQ(previewColor(QPalette::Text), QColor(12, 34, 56)) << "cancelled";
}

TEST_F(ElementEditorTest, EditsTheChosenElementOnly)
{
    QTest::keyClick(find<QListWidget>("m_listItems"), Qt::Key_Down);
    EXPECT_TRUE(find<QCheckBox>("m_checkItalic")->isChecked()) << "names are italic by default";
    EXPECT_EQ(previewColor(QPalette::Text), QColor(0, 128, 0));
    click("m_checkBold");
    click("m_checkShow");
    m_page.save();
    EXPECT_TRUE(stored("Node/Part Name").font.bold());
    EXPECT_FALSE(stored("Node/Part Name").isShown);
    EXPECT_FALSE(stored("Node Type").font.bold());
    EXPECT_TRUE(stored("Node Type").isShown);
    QTest::keyClick(find<QListWidget>("m_listItems"), Qt::Key_Up);
    EXPECT_TRUE(find<QCheckBox>("m_checkShow")->isChecked());
    EXPECT_FALSE(find<QCheckBox>("m_checkBold")->isChecked());
}

TEST_F(ElementEditorTest, GoesBackToTheDefaultsOfTheChosenElement)
{
    click("m_checkBold");
    QTest::keyClick(find<QListWidget>("m_listItems"), Qt::Key_End);
    EXPECT_EQ(find<QComboBox>("m_comboFamily")->currentText(), "Times New Roman") << "also where it is not installed";
    click("m_checkUnderline");
    click("m_checkShow");
    QTest::mouseClick(find<QPushButton>("m_pushToDefault"), Qt::LeftButton);
    EXPECT_FALSE(find<QCheckBox>("m_checkUnderline")->isChecked());
    EXPECT_TRUE(find<QCheckBox>("m_checkShow")->isChecked());
    m_page.save();
    EXPECT_TRUE(stored("Node Type").font.bold()) << "another element keeps its change";
    EXPECT_FALSE(stored("Node From Field").font.underline());
}

TEST_F(ElementEditorTest, LoadingDropsWhatWasNotSaved)
{
    click("m_checkBold");
    click("m_checkSelectedNode");
    QTest::keyClick(find<QListWidget>("m_listItems"), Qt::Key_End);
    m_page.reInit();
    EXPECT_EQ(find<QListWidget>("m_listItems")->currentRow(), 0);
    EXPECT_FALSE(find<QCheckBox>("m_checkBold")->isChecked());
    EXPECT_FALSE(preview()->font().bold());
    EXPECT_TRUE(find<QCheckBox>("m_checkSelectedNode")->isChecked());
}

TEST_F(ElementEditorTest, ATextThatWouldNotBeReadStandsOnAnotherGround)
{
    DisplayElementMap elements = store().defaultElements(SoPreferenceStore::TreeViewGroup);
    elements["Node Type"].color = Qt::white;
    store().saveElements(SoPreferenceStore::TreeViewGroup, elements);
    QPalette light;
    light.setColor(QPalette::Base, Qt::white);
    m_page.setPalette(light);
    m_page.reInit();
    EXPECT_EQ(previewColor(QPalette::Text), QColor(Qt::white));
    EXPECT_LT(previewColor(QPalette::Base).lightness(), 128);
}

TEST(PreferencePages, HaveTheNamesAndTextsOfTheirForms)
{
    SoTreeViewPreferences tree;
    SoNodeOverviewPreferences overview;
    SoFieldWatchPreferences watch;
    const auto text = [](QWidget& page, const char* name) {
        auto* button = page.findChild<QAbstractButton*>(name);
        auto* label = page.findChild<QLabel*>(name);
        auto* group = page.findChild<QGroupBox*>(name);
        return (button ? button->text() : label ? label->text() : group ? group->title() : QString()).toStdString();
    };
    EXPECT_EQ(watch.windowTitle(), "FieldWatchPreferences");
    EXPECT_EQ(watch.objectName(), "nodescopefieldwatch_preferences");
    EXPECT_EQ(watch.findChild<QTabWidget*>("m_fieldWatchTab")->tabText(0), "Field Watch Item");
    EXPECT_EQ(overview.windowTitle(), "NodeOverviewPreferences");
    EXPECT_EQ(overview.objectName(), "QNodeOverviewPreferences");
    EXPECT_EQ(text(overview, "m_syntaxGroupBox"), "S&yntax Highlighting");
    EXPECT_EQ(text(overview, "m_displayGroupBox"), "Field &Display Policy");
    EXPECT_EQ(text(overview, "m_checkPart"), "Show &Catalog Parts");
    EXPECT_EQ(text(tree, "m_selectionGroupBox"), "Selection Policy");
    EXPECT_EQ(text(tree, "m_checkSelectedNode"), "Highlight selected node.");
    EXPECT_EQ(text(tree, "m_referenceGroupBox"), "Reference Count");
    EXPECT_EQ(text(tree, "m_checkBaseKit"), "Real reference count for NodeKits.");
    for (QWidget* page :
         {static_cast<QWidget*>(&tree), static_cast<QWidget*>(&overview), static_cast<QWidget*>(&watch)}) {
        EXPECT_EQ(text(*page, "m_listItemsLabel"), "&Element:");
        EXPECT_EQ(text(*page, "m_familyLabel"), "&Family:");
        EXPECT_EQ(text(*page, "m_sizeLabel"), "&Size:");
        EXPECT_EQ(text(*page, "m_checkBold"), "&Bold");
        EXPECT_EQ(page->findChild<QCheckBox*>("m_checkUnderline")->shortcut(), QKeySequence("Alt+U"));
        EXPECT_EQ(text(*page, "m_previewLabel"), "&Preview:");
        EXPECT_EQ(text(*page, "m_labelColor"), "Change co&lor:");
        EXPECT_EQ(page->findChild<QWidget*>("m_buttonColor")->maximumSize(), QSize(20, 20));
        EXPECT_EQ(text(*page, "m_pushToDefault"), "&Set to default");
    }
}

TEST_F(PreferenceTest, TheNodeOverviewPageKeepsWhetherPartsAreShown)
{
    SoNodeOverviewPreferences page;
    page.reInit();
    auto* box = page.findChild<QCheckBox*>("m_checkPart");
    EXPECT_FALSE(box->isChecked());
    box->click();
    page.save();
    EXPECT_TRUE(store().readShowCatalogPart(SoPreferenceStore::NodeOverviewGroup));
    SoNodeOverviewPreferences other;
    other.reInit();
    EXPECT_TRUE(other.findChild<QCheckBox*>("m_checkPart")->isChecked());
}

} // namespace
