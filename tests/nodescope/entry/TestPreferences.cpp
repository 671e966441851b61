#include "InspectionFixture.h"

#include <extension/NscExtension.h>
#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QAbstractButton>
#include <QAction>
#include <QColorDialog>
#include <QLabel>
#include <QListWidget>
#include <QSettings>

namespace {

class PreferencesTest : public InspectionTest {
protected:
    PreferencesTest()
    {
        QSettings("Nodescope", "Nodescope").clear();
        SoPreferences::setValue("VXL_DISABLE_MAINLOOP", "1");
    }
    ~PreferencesTest() override
    {
        SoPreferences::removeValue("VXL_DISABLE_MAINLOOP");
        QSettings("Nodescope", "Nodescope").clear();
    }

    static void startStandalone() { _startStandalone(0, nullptr); }
    /** Opens the dialog, lets the user do something in it and presses one of its buttons. */
    static void edit(const std::function<void(QDialog&)>& use, const char* buttonName)
    {
        ModalAnswers answers;
        answers.expectDialog("Preferences", [&](QDialog& dialog) {
            use(dialog);
            click(dialog, buttonName);
        });
        frame().action(ActionId::Preferences)->trigger();
    }
    static void click(QWidget& parent, const char* buttonName)
    {
        auto* button = parent.findChild<QAbstractButton*>(buttonName);
        ASSERT_TRUE(button) << buttonName;
        button->click();
    }
    static std::string pageNames()
    {
        QStringList names;
        edit(
            [&names](QDialog& dialog) {
                auto* list = dialog.findChild<QListWidget*>("m_preferenceList");
                for (int i = 0; i < list->count(); ++i)
                    names << list->item(i)->text();
            },
            "m_cancelButton");
        return names.join(", ").toStdString();
    }
    static SoSceneManager& sceneManager() { return *NscServicesImpl::getInstance()->getSceneManager(); }
    static SoNodescopeTreeView& tree() { return *SoNodescopeViewer::getInstance()->treeView(); }
};

/** Offers a page. */
class PageExtension : public NscExtension {
    Q_OBJECT
public:
    PageExtension() : NscExtension({"Ruler"}) {}

    void activate() override {}
    void show() override {}
    void hide() override {}

    QLabel m_page{"units"};
    QStringList m_calls;

public slots:
    void load() { m_calls << "load"; }
    void store() { m_calls << "store"; }
};

TEST_F(PreferencesTest, HaveThePagesInTheirOrder)
{
    startStandalone();
    PageExtension extension;
    NscShellImpl& shell = *NscShellImpl::getInstance();
    shell.addPreferencePage(&extension, &extension.m_page, SLOT(load()), SLOT(store()));
    EXPECT_EQ(pageNames(), "Environment, Tree View, Node Overview, Field Watch, Ruler");
    extension.m_calls.clear();
    edit([](QDialog&) {}, "m_okButton");
    EXPECT_EQ(extension.m_calls.join(", "), "load, store");
    EXPECT_EQ(extension.m_page.parentWidget(), nullptr);
    shell.removePreferencePage(&extension);
}

TEST_F(PreferencesTest, HaveNoPageFor3DWhereTheHostShowsTheScene)
{
    _startNode(m_root, nullptr);
    EXPECT_EQ(pageNames(), "Tree View, Node Overview, Field Watch");
}

TEST_F(PreferencesTest, ChangeTheViewAtOnceAndAtTheNextStart)
{
    startStandalone();
    EXPECT_EQ(sceneManager().getGLRenderAction()->getTransparencyType(), SoGLRenderAction::SORTED_OBJECT);
    const std::pair<const char*, int> buttons[] = {{"m_radioSortedObject", SoGLRenderAction::SORTED_OBJECT},
                                                   {"m_radioOpaqueFirst", SoGLRenderAction::OPAQUE_FIRST},
                                                   {"m_radioSortedPixel", SoGLRenderAction::SORTED_PIXEL},
                                                   {"m_radioNoSort", SoGLRenderAction::NO_SORT}};
    for (const auto& [button, type] : buttons) {
        edit([button = button](QDialog& dialog) { click(dialog, button); }, "m_okButton");
        EXPECT_EQ(int(sceneManager().getGLRenderAction()->getTransparencyType()), type);
    }
    ModalAnswers answers;
    answers.expectDialog("Preferences", [&answers](QDialog& dialog) {
        answers.expectDialog("Select Color", [](QDialog& chooser) {
            static_cast<QColorDialog&>(chooser).setCurrentColor(QColor(0, 255, 51));
            chooser.accept();
        });
        click(dialog, "m_backgroundButton");
        click(dialog, "m_okButton");
    });
    frame().action(ActionId::Preferences)->trigger();
    for (int start = 0; start < 2; ++start) {
        const SbColorRGBA background = sceneManager().getBackgroundColorRGBA();
        EXPECT_EQ(background, SbColorRGBA(0, 1, 0.2f, 1));
        EXPECT_EQ(sceneManager().getGLRenderAction()->getTransparencyType(), SoGLRenderAction::NO_SORT);
        _stop();
        startStandalone();
    }
}

TEST_F(PreferencesTest, CancelledChangeNothing)
{
    startStandalone();
    edit([](QDialog& dialog) { click(dialog, "m_radioNoSort"); }, "m_cancelButton");
    EXPECT_EQ(sceneManager().getGLRenderAction()->getTransparencyType(), SoGLRenderAction::SORTED_OBJECT);
    edit([](QDialog& dialog) { EXPECT_TRUE(dialog.findChild<QAbstractButton*>("m_radioSortedObject")->isChecked()); },
         "m_okButton");
    EXPECT_EQ(sceneManager().getGLRenderAction()->getTransparencyType(), SoGLRenderAction::SORTED_OBJECT);
}

TEST_F(PreferencesTest, SwitchTheMarkOfTheSelectedNode)
{
    _startNode(m_root, nullptr);
    SoSelection& selection = *SoNodescopeViewer::getInstance()->selection();
    const auto chooseRow = [](int child) { tree().setCurrentItem(tree().topLevelItem(0)->child(child)); };
    m_root->addChild(new SoMaterial);
    chooseRow(0);
    EXPECT_EQ(selection.getNumSelected(), 1);
    const auto toggle = [](QDialog& dialog) { click(dialog, "m_checkSelectedNode"); };
    edit(toggle, "m_okButton");
    EXPECT_EQ(selection.getNumSelected(), 0);
    chooseRow(1);
    EXPECT_EQ(selection.getNumSelected(), 0);
    edit(toggle, "m_okButton");
    EXPECT_EQ(selection.getNumSelected(), 1);
}

TEST_F(PreferencesTest, ShowInTheTreeAtOnceAndAtTheNextStart)
{
    _startNode(m_root, nullptr);
    edit([](QDialog&) {}, "m_okButton");
    EXPECT_EQ(tree().topLevelItem(0)->data(1, Qt::FontRole), tree().topLevelItem(0)->data(0, Qt::FontRole))
        << "what was saved without a change shows as before";
    edit(
        [](QDialog& dialog) {
            auto* page = dialog.findChild<QWidget*>("QTreeViewPreferences");
            click(*page, "m_checkBold");
            page->findChild<QListWidget*>("m_listItems")->setCurrentRow(2);
            click(*page, "m_checkShow");
        },
        "m_okButton");
    for (int start = 0; start < 2; ++start) {
        EXPECT_TRUE(tree().topLevelItem(0)->data(0, Qt::FontRole).value<QFont>().bold());
        EXPECT_TRUE(tree().isColumnHidden(SoTreeViewItem::ReferenceCountColumn));
        _stop();
        _startNode(m_root, nullptr);
    }
}

TEST_F(PreferencesTest, CountTheReferencesInsideANodekitOnRequest)
{
    auto* kit = new SoShapeKit;
    m_root->addChild(kit);
    auto* part = static_cast<SoMaterial*>(kit->getPart("appearance.material", true));
    ASSERT_TRUE(part);
    _startNode(m_root, nullptr);
    const auto texts = [] {
        QStringList all;
        for (QTreeWidgetItemIterator each(&tree()); *each; ++each)
            all << (*each)->text(SoTreeViewItem::TypeColumn) + ' ' +
                       (*each)->text(SoTreeViewItem::ReferenceCountColumn);
        return all;
    };
    const QStringList before = texts();
    EXPECT_TRUE(before.contains("Material 1")) << before.join(", ").toStdString();
    edit([](QDialog& dialog) { click(dialog, "m_checkBaseKit"); }, "m_okButton");
    for (QTreeWidgetItemIterator each(&tree()); *each; ++each) {
        const auto* row = static_cast<SoTreeViewItem*>(*each);
        EXPECT_EQ(row->text(SoTreeViewItem::ReferenceCountColumn), QString::number(row->node()->getRefCount()));
    }
    EXPECT_NE(texts(), before);
    EXPECT_TRUE(texts().contains("ShapeKit 1")) << "the kit itself stands in one place";
}

TEST_F(PreferencesTest, AnInspectionCanBeStoppedWhileTheyAreOpen)
{
    startStandalone();
    ModalAnswers answers;
    answers.expectDialog("Preferences", [&answers](QDialog& dialog) {
        answers.expectDialog("Select Color", [](QDialog&) { _stop(); });
        click(dialog, "m_backgroundButton");
    });
    frame().action(ActionId::Preferences)->trigger();
    EXPECT_EQ(_isRunning(), 0);
}

} // namespace

#include "TestPreferences.moc"
