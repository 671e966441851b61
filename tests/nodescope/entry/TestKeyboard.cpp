#include "InspectionFixture.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/tree/SoNodescopeTreeView.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace {

template <class... Classes>
bool isOneOf(const QObject* object)
{
    return (qobject_cast<const Classes*>(object) || ...);
}

/** Whether the user works with the widget itself: it is not part of another one that has the keyboard for it. */
bool isControl(const QWidget& widget)
{
    if (!isOneOf<QAbstractButton, QLineEdit, QComboBox, QAbstractSpinBox, QAbstractItemView, QTabBar>(&widget) ||
        isOneOf<QHeaderView>(&widget) || widget.objectName().startsWith("qt_"))
        return false;
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (isOneOf<QComboBox, QAbstractSpinBox, QTabBar>(above))
            return false;
    }
    return true;
}

std::string nameOf(const QWidget& widget)
{
    return widget.metaObject()->className() + (" '" + widget.objectName().toStdString() + "'");
}

class KeyboardTest : public InspectionTest {
protected:
    static SoCommandManager& manager() { return *NscServicesImpl::getInstance()->getCommandManager(); }
    static void checkAll(const QWidget& window, int least)
    {
        int count = 0;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->window() != &window || !isControl(*widget))
                continue;
            ++count;
            const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            const bool hasTabs = isOneOf<QTabBar>(widget); // which are named one by one
            EXPECT_TRUE(hasTabs || (accessible && !accessible->text(QAccessible::Name).isEmpty()))
                << nameOf(*widget) << " in " << nameOf(window) << " has no accessible name";
            // Buttons of tool bars, and those beside the 3D view, are there for the mouse; see the tests on their keys.
            if (!isOneOf<QToolButton>(widget) || isOneOf<QDialog>(&window)) {
                EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus)
                    << nameOf(*widget) << " in " << nameOf(window) << " cannot be reached with the Tab key";
            }
        }
        EXPECT_GE(count, least) << nameOf(window);
    }
    static void collectActions(const QList<QAction*>& actions, QSet<QAction*>& found)
    {
        for (QAction* action : actions) {
            found.insert(action);
            if (action->menu())
                collectActions(action->menu()->actions(), found);
        }
    }
};

TEST_F(KeyboardTest, ReachesEverythingInTheWindow)
{
    SoPreferences::setValue("VXL_DISABLE_MAINLOOP", "1");
    _startStandalone(0, nullptr);
    SoPreferences::removeValue("VXL_DISABLE_MAINLOOP");
    checkAll(frame(), 8);
}

TEST_F(KeyboardTest, ReachesEverythingInTheDialogs)
{
    _startNode(m_root, nullptr);
    ModalAnswers answers;
    answers.expectDialog("Preferences", [](QDialog& dialog) {
        checkAll(dialog, 25);
        dialog.accept();
    });
    frame().action(ActionId::Preferences)->trigger();
    answers.expectDialog("About Nodescope", [](QDialog& dialog) {
        checkAll(dialog, 0);
        dialog.accept();
    });
    frame().action(ActionId::About)->trigger();
    manager().showFindDialog();
    manager().treeAddNode();
    const QList<QDialog*> dialogs = frame().findChildren<QDialog*>();
    EXPECT_EQ(dialogs.size(), 2);
    for (const QDialog* dialog : dialogs)
        checkAll(*dialog, 4);
}

TEST_F(KeyboardTest, TheMenusHaveWhatTheToolBarsHave)
{
    _startNode(m_root, nullptr);
    QSet<QAction*> inMenus;
    collectActions(frame().menuBar()->actions(), inMenus);
    for (const QToolBar* bar : frame().findChildren<QToolBar*>()) {
        for (QAction* action : bar->actions()) {
            const bool isWidget = action->metaObject() != &QAction::staticMetaObject; // as the search box
            EXPECT_TRUE(action->isSeparator() || isWidget || inMenus.contains(action) || !action->shortcut().isEmpty())
                << action->text().toStdString() << " can be reached with the mouse only";
        }
    }
}

TEST_F(KeyboardTest, GoesThroughAPageOfThePreferences)
{
    _startNode(m_root, nullptr);
    ModalAnswers answers;
    answers.expectDialog("Preferences", [](QDialog& dialog) {
        QApplication::setActiveWindow(&dialog);
        auto* list = dialog.findChild<QListWidget*>("m_preferenceList");
        list->setFocus();
        QStringList seen;
        do {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            seen << dialog.focusWidget()->objectName();
        } while (dialog.focusWidget() != list && seen.size() < 30);
        for (const char* name : {"m_listItems", "m_comboFamily", "m_spinSize", "m_checkBold", "m_buttonColor",
                                 "m_editPreview", "m_pushToDefault", "m_checkShow", "m_checkSelectedNode",
                                 "m_checkBaseKit", "m_okButton", "m_applyButton", "m_cancelButton"})
            EXPECT_TRUE(seen.contains(name)) << name << " is not among " << seen.join(", ").toStdString();
        dialog.reject();
    });
    frame().action(ActionId::Preferences)->trigger();
}

} // namespace
