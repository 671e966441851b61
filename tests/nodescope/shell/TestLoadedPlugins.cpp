#include "PluginFixture.h"

#include <extension/NscExtension.h>
#include <nodescope/edit/SoCommandManager.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/fields/SoSFTime.h>

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>

namespace {

constexpr char One_of_everything[] = "<activeExtension plugin=\"WindowPlugin\" extension=\"Loaded\"/>";

QAction* actionOf(const QWidget& menu, const QString& text)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

QLabel* labelOf(const QWidget& parent, const QString& text)
{
    for (QLabel* label : parent.findChildren<QLabel*>()) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

} // namespace

TEST_F(PluginTest, AnExtensionHasItsPlaceInTheWindow)
{
    start(One_of_everything);
    auto* const dock = frame().findChild<QDockWidget*>("Loaded Dock");
    auto* const bar = frame().findChild<QToolBar*>("Loaded Bar");
    ASSERT_TRUE(dock && bar);
    EXPECT_TRUE(dock->isVisible());
    EXPECT_EQ(frame().dockWidgetArea(dock), Qt::RightDockWidgetArea);
    EXPECT_EQ(frame().toolBarArea(bar), Qt::TopToolBarArea);
    EXPECT_TRUE(actionOf(*frame().menuBar(), "&Loaded"));
    EXPECT_TRUE(labelOf(*frame().statusBar(), "Loaded Status"));

    QAction* const toggle = actionOf(*frame().viewMenu(), "Loaded");
    ASSERT_TRUE(toggle);
    toggle->trigger();
    EXPECT_FALSE(dock->isVisible());
    toggle->trigger();
    EXPECT_TRUE(dock->isVisible());
}

TEST_F(PluginTest, TheDialogLoadsAndSavesThePageOfAnExtension)
{
    start(One_of_everything);
    ModalAnswers answers;
    answers.expectDialog("Preferences", [](QDialog& dialog) {
        EXPECT_TRUE(labelOf(dialog, "loaded"));
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text().remove('&') == "Apply")
                button->click();
        }
        EXPECT_TRUE(labelOf(dialog, "saved"));
        dialog.reject();
    });
    frame().action(ActionId::Preferences)->trigger();
}

TEST_F(PluginTest, ExtensionsGoBeforeTheShellTheLastCreatedFirst)
{
    start("<activeExtension plugin=\"TestPlugin\" extension=\"A\"><controlledExtension plugin=\"TestPlugin\" "
          "extension=\"C\"/></activeExtension><activeExtension plugin=\"TestPlugin\" extension=\"B\"/>" +
          QByteArray(One_of_everything));
    EXPECT_EQ(preference("TEST_PLUGIN_LOG"),
              "create C\nactivate C\ncreate A\nadd C to A\nactivate A\ncreate B\nactivate B\n");
    SoPreferences::setValue("TEST_PLUGIN_LOG", "");
    closeWindow();
    EXPECT_EQ(preference("TEST_PLUGIN_LOG"), "delete B\ndelete A\ndelete C\ndelete plug-in\n");
    EXPECT_EQ(preference("TEST_SHELL_AT_END"), "there");
}

TEST_F(PluginTest, NothingIsLeftOfAnExtensionThatFailsAfterItRegistered)
{
    SoDebugError::setHandlerCallback([](const SoError*, void*) {});
    start("<activeExtension plugin=\"WindowPlugin\" extension=\"Fails\"/>");
    SoDebugError::setHandlerCallback(nullptr);
    EXPECT_EQ(NscPluginsManager::getInstance()->getProblems().back(),
              "the extension 'Fails' of the plug-in 'WindowPlugin' cannot be activated: after it registered");
    EXPECT_FALSE(frame().findChild<QDockWidget*>("Loaded Dock"));
    EXPECT_FALSE(actionOf(*frame().viewMenu(), "Fails"));
    EXPECT_FALSE(actionOf(*frame().menuBar(), "&Loaded"));
    EXPECT_TRUE(NscShellImpl::getInstance()->getPreferencePages().empty());
    EXPECT_TRUE(NscShellImpl::getInstance()->getExtensions(SoSFTime::getClassTypeId()).empty());
}

TEST_F(PluginTest, WithoutItsPlugInsTheInspectorWorks)
{
    SoDebugError::setHandlerCallback([](const SoError*, void*) {});
    write("empty.xml", "<configuration><plugins><loadPlugin file=\"no_such\"/></plugins></configuration>");
    _startNode(m_root, nullptr);
    SoDebugError::setHandlerCallback(nullptr);
    EXPECT_EQ(NscPluginsManager::getInstance()->getProblems().size(), 1u);
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(SoNodescopeViewer::getInstance()->scene(), m_root);
}

TEST_F(PluginTest, DocksAndToolBarsOfExtensionsComeBackWhereTheUserLeftThem)
{
    start(One_of_everything);
    auto* dock = frame().findChild<QDockWidget*>("Loaded Dock");
    auto* bar = frame().findChild<QToolBar*>("Loaded Bar");
    frame().addDockWidget(Qt::LeftDockWidgetArea, dock);
    frame().addToolBar(Qt::BottomToolBarArea, bar);
    actionOf(*frame().viewMenu(), "Field Watch")->trigger();
    closeWindow();

    start(One_of_everything);
    dock = frame().findChild<QDockWidget*>("Loaded Dock");
    bar = frame().findChild<QToolBar*>("Loaded Bar");
    EXPECT_EQ(frame().dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    EXPECT_TRUE(dock->isVisible());
    EXPECT_EQ(frame().toolBarArea(bar), Qt::BottomToolBarArea);
    EXPECT_FALSE(frame().findChild<QDockWidget*>("dockFieldWatch")->isVisible());
    dock->close();
    closeWindow();

    start(QByteArray()); // in between without the plug-in
    closeWindow();

    start(One_of_everything);
    dock = frame().findChild<QDockWidget*>("Loaded Dock");
    EXPECT_FALSE(dock->isVisible());
    EXPECT_EQ(frame().dockWidgetArea(dock), Qt::LeftDockWidgetArea);
}

TEST_F(PluginTest, WhatAStoredLayoutDoesNotKnowStandsWhereItsExtensionPutsIt)
{
    start(QByteArray());
    closeWindow();
    start(One_of_everything);
    auto* const dock = frame().findChild<QDockWidget*>("Loaded Dock");
    auto* const bar = frame().findChild<QToolBar*>("Loaded Bar");
    EXPECT_TRUE(dock->isVisible());
    EXPECT_FALSE(dock->isFloating());
    EXPECT_EQ(frame().dockWidgetArea(dock), Qt::RightDockWidgetArea);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(frame().toolBarArea(bar), Qt::TopToolBarArea);
}

TEST_F(PluginTest, ASessionOnAHostLeavesThePlaceOfTheTreeToTheNextOneWithout)
{
    const auto startAlone = [] {
        SoPreferences::setValue("VXL_DISABLE_MAINLOOP", "1");
        _startStandalone(0, nullptr);
        SoPreferences::removeValue("VXL_DISABLE_MAINLOOP");
        return frame().findChild<QDockWidget*>("dockMainWin");
    };
    QDockWidget* tree = startAlone();
    frame().addDockWidget(Qt::RightDockWidgetArea, tree);
    closeWindow();
    start(QByteArray());
    closeWindow();
    tree = startAlone();
    EXPECT_EQ(frame().dockWidgetArea(tree), Qt::RightDockWidgetArea);
    EXPECT_FALSE(tree->isHidden());
}

TEST_F(PluginTest, ADockThatComesLateIsPlacedToo)
{
    start(QByteArray());
    const auto addDock = [] {
        auto* const dock = new QDockWidget("Late");
        NscShell::getInstance()->addDockWidget(dock, Qt::RightDockWidgetArea);
        return dock;
    };
    frame().addDockWidget(Qt::LeftDockWidgetArea, addDock());
    closeWindow();
    start(QByteArray());
    EXPECT_EQ(frame().dockWidgetArea(addDock()), Qt::LeftDockWidgetArea);
}

TEST_F(PluginTest, ADamagedLayoutIsPassedOver)
{
    m_disk.setValue("/NodescopeViewer/NodescopeMainFrame/DocksAndToolBars", "AAAA/wAAAAH9damaged");
    m_disk.sync();
    start(One_of_everything);
    EXPECT_EQ(frame().dockWidgetArea(frame().findChild<QDockWidget*>("Loaded Dock")), Qt::RightDockWidgetArea);
    EXPECT_TRUE(frame().findChild<QDockWidget*>("dockFieldWatch")->isVisible());
}
