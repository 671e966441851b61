#include <tests/nodescope/entry/InspectionFixture.h>

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/tree/SoNodescopeTreeView.h>

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMenuBar>
#include <QPushButton>
#include <QScopeGuard>

namespace {

// Before the application object asks for it.
const bool IsGermanSystem = qputenv("LC_ALL", "de_DE.UTF-8") && qputenv("LANGUAGE", "de");

class GermanTest : public InspectionTest {
protected:
    static std::string menuTitles()
    {
        QStringList titles;
        for (const QAction* menu : frame().menuBar()->actions())
            titles << menu->text();
        return titles.join(", ").toStdString();
    }
};

TEST_F(GermanTest, TheWindowIsGerman)
{
    ASSERT_TRUE(IsGermanSystem);
    _startNode(m_root, nullptr);
    EXPECT_EQ(menuTitles(), "&Datei, &Bearbeiten, &Ansicht, Ba&um, &?");
    EXPECT_EQ(frame().action(ActionId::Undo)->text(), "&Rückgängig");
    const QTreeWidgetItem* header = SoNodescopeViewer::getInstance()->treeView()->headerItem();
    EXPECT_EQ(header->text(0) + ' ' + header->text(2), "Typ Verweise");
    EXPECT_EQ(frame().findChild<QDockWidget*>("dockFieldWatch")->windowTitle(), "Beobachtete Felder");
}

TEST_F(GermanTest, DialogsAreGerman)
{
    _startNode(m_root, nullptr);
    ModalAnswers answers;
    answers.expectDialog("Einstellungen", [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QPushButton*>("m_applyButton")->text(), "&Anwenden");
        EXPECT_EQ(dialog.findChild<QListWidget*>("m_preferenceList")->item(0)->text(), "Baum");
        for (const QListWidget* list : dialog.findChildren<QListWidget*>()) {
            if (list->isVisible()) {
                EXPECT_LE(list->sizeHintForColumn(0), list->viewport()->width()) << list->objectName().toStdString();
            }
        }
        auto* page = dialog.findChild<QWidget*>("QTreeViewPreferences");
        EXPECT_EQ(page->findChild<QLabel*>("m_listItemsLabel")->text(), "&Element:");
        EXPECT_EQ(page->findChild<QListWidget*>("m_listItems")->item(0)->text(), "Knotentyp");
        dialog.accept();
    });
    frame().action(ActionId::Preferences)->trigger();
    answers.expectDialog("Über Nodescope", [](QDialog& dialog) { dialog.accept(); });
    frame().action(ActionId::About)->trigger();
    NscServicesImpl::getInstance()->getCommandManager()->showFindDialog();
    EXPECT_EQ(frame().findChild<QDialog*>()->windowTitle(), "Suchen");
}

TEST_F(GermanTest, ThePanelOfFieldEditorsIsGermanAsLongAsThePlugInIsThere)
{
    write("empty.xml", "<configuration><plugins><loadPlugin file=\"kor_nodescope_extender_base\"/></plugins>"
                       "<profiles default=\"Main\"><profile name=\"Main\">"
                       "<activeExtension plugin=\"NscDefaults\" extension=\"Field Editor\"/>"
                       "</profile></profiles></configuration>");
    _startNode(m_root, nullptr);
    const auto* dock = frame().findChild<QDockWidget*>("FieldEditor");
    ASSERT_TRUE(dock);
    EXPECT_EQ(dock->windowTitle(), "Feld-Editor");
    EXPECT_EQ(QCoreApplication::translate("ColorSwatch", "Color"), "Farbe");
    _stop();
    EXPECT_EQ(QCoreApplication::translate("ColorSwatch", "Color"), "Color");
}

TEST_F(GermanTest, TextsAndLocaleOfTheHostStayAsTheyAre)
{
    const QLocale before;
    const auto restore = qScopeGuard([before] { QLocale::setDefault(before); });
    const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
    _startNode(m_root, nullptr);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel);
    EXPECT_EQ(QLocale::system().language(), QLocale::German);
    _stop();
    EXPECT_EQ(QCoreApplication::translate("Menu", "&Undo"), "&Undo") << "nothing is left of the inspector";
}

TEST_F(GermanTest, EveryTextOfAMenuHasAKeyOfItsOwnWhereTheEnglishOneHas)
{
    _startNode(m_root, nullptr);
    for (const QMenu* menu : frame().menuBar()->findChildren<QMenu*>()) {
        QMap<QChar, QString> keys;
        for (const QAction* action : menu->actions()) {
            const int mark = action->text().indexOf('&');
            if (mark < 0)
                continue;
            const QChar key = action->text().at(mark + 1).toLower();
            EXPECT_FALSE(keys.contains(key)) << menu->title().toStdString() << ": '" << action->text().toStdString()
                                             << "' and '" << keys.value(key).toStdString() << "'";
            keys.insert(key, action->text());
        }
    }
}

} // namespace
