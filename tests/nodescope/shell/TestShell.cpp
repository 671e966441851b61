#include "ShellFixture.h"

#include <vexel/base/SoError.h>
#include <vexel/fields/SoMFFloat.h>

#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QStatusBar>
#include <QToolBar>

namespace {

QStringList textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions)
        texts << action->text();
    return texts;
}

} // namespace

TEST_F(ShellTest, ThereIsOneShell)
{
    EXPECT_EQ(NscShell::getInstance(), &shell());
    std::string message;
    SoError::setHandlerCallback(
        [](const SoError* error, void* data) {
            *static_cast<std::string*>(data) = error->getDebugString().toUtf8().toStdString();
        },
        &message);
    NscShellImpl* const before = &shell();
    NscShellImpl::createInstance(nullptr);
    SoError::setHandlerCallback(nullptr);
    EXPECT_EQ(message, "NscShellImpl::createInstance, instance already exists.");
    EXPECT_EQ(&shell(), before);
    const QPointer<SoNodescopeMainFrame> window(&frame());
    NscShellImpl::deleteInstance();
    EXPECT_EQ(NscShell::getInstance(), nullptr);
    EXPECT_FALSE(window);
}

TEST_F(ShellTest, TheMainWindowBelongsToTheParent)
{
    NscShellImpl::deleteInstance();
    QWidget host;
    NscShellImpl::createInstance(&host);
    EXPECT_EQ(frame().parentWidget(), &host);
    EXPECT_TRUE(frame().isWindow());
    NscShellImpl::deleteInstance();
}

TEST_F(ShellTest, DocksStandInTheirArea)
{
    auto* dock = new QDockWidget("Dock");
    shell().addDockWidget(dock, Qt::RightDockWidgetArea);
    EXPECT_EQ(dock->parentWidget(), &frame());
    EXPECT_EQ(frame().dockWidgetArea(dock), Qt::RightDockWidgetArea);
    shell().removeDockWidget(dock);
    EXPECT_EQ(frame().dockWidgetArea(dock), Qt::NoDockWidgetArea);
    shell().addDockWidget(dock, Qt::LeftDockWidgetArea);
    dock->setFloating(true);
    shell().removeDockWidget(dock);
    EXPECT_EQ(frame().dockWidgetArea(dock), Qt::NoDockWidgetArea);
}

TEST_F(ShellTest, WhatWasNotAddedIsNotTouched)
{
    QDockWidget dock;
    QToolBar bar;
    QMenu menu;
    QLabel label;
    dock.show();
    bar.show();
    label.show();
    shell().removeDockWidget(&dock);
    shell().removeToolBar(&bar);
    shell().removeMenu(&menu);
    shell().removeStatusWidget(&label);
    shell().unregisterExtension(&m_other);
    shell().setViewToggle(&m_other, true);
    EXPECT_TRUE(dock.isVisible());
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(label.isVisible());
}

TEST_F(ShellTest, DocksAndToolBarsWithoutANameAreKnownByTheirTitle)
{
    auto* named = new QDockWidget("Dock");
    named->setObjectName("name");
    auto* unnamed = new QDockWidget("Other");
    auto* bar = new QToolBar("Bar");
    shell().addDockWidget(named, Qt::RightDockWidgetArea);
    shell().addDockWidget(unnamed, Qt::RightDockWidgetArea);
    shell().addToolBar(bar, Qt::TopToolBarArea);
    EXPECT_EQ(named->objectName(), "name");
    EXPECT_EQ(unnamed->objectName(), "Other");
    EXPECT_EQ(bar->objectName(), "Bar");
}

TEST_F(ShellTest, ToolBarsStandInTheirArea)
{
    auto* bar = new QToolBar("Bar");
    shell().addToolBar(bar, Qt::LeftToolBarArea);
    EXPECT_EQ(bar->parentWidget(), &frame());
    EXPECT_EQ(frame().toolBarArea(bar), Qt::LeftToolBarArea);
    shell().removeToolBar(bar);
    EXPECT_EQ(frame().toolBarArea(bar), Qt::NoToolBarArea);
}

TEST_F(ShellTest, MenusStandInFrontOfTheHelpMenu)
{
    QMenu menu("&Mine");
    shell().addMenu(&menu);
    EXPECT_EQ(textsOf(frame().menuBar()->actions()),
              (QStringList{"File", "&Edit", "&View", "&TreeView", "&Mine", "&?"}));
    shell().removeMenu(&menu);
    shell().removeMenu(&menu);
    EXPECT_EQ(textsOf(frame().menuBar()->actions()), (QStringList{"File", "&Edit", "&View", "&TreeView", "&?"}));
}

TEST_F(ShellTest, AViewToggleShowsAndHidesItsExtension)
{
    shell().addViewToggle(&m_extension, true);
    shell().addViewToggle(&m_other, false);
    const QList<QAction*> entries = frame().viewMenu()->actions();
    ASSERT_EQ(textsOf(entries), (QStringList{"Test", "Other"}));
    EXPECT_TRUE(entries[0]->isChecked());
    EXPECT_FALSE(entries[1]->isChecked());

    entries[0]->trigger();
    EXPECT_EQ(m_extension.m_calls, QStringList{"hide"});
    entries[0]->trigger();
    EXPECT_EQ(m_extension.m_calls, (QStringList{"hide", "show"}));
    EXPECT_EQ(m_other.m_calls, QStringList{});

    shell().removeViewToggle(&m_extension);
    shell().removeViewToggle(&m_extension);
    EXPECT_EQ(textsOf(frame().viewMenu()->actions()), QStringList{"Other"});
}

TEST_F(ShellTest, AViewToggleFollowsAViewThatIsClosedByOtherMeans)
{
    shell().addViewToggle(&m_extension, true);
    const QAction& entry = *frame().viewMenu()->actions().first();
    shell().setViewToggle(&m_extension, false);
    EXPECT_FALSE(entry.isChecked());
    shell().setViewToggle(&m_extension, true);
    EXPECT_TRUE(entry.isChecked());
    EXPECT_EQ(m_extension.m_calls, QStringList{});
}

TEST_F(ShellTest, AnExtensionThatIsDeletedLeavesNothing)
{
    auto extension = std::make_unique<TestExtension>("Gone");
    QWidget page;
    shell().addViewToggle(extension.get(), true);
    shell().addViewToggle(extension.get(), false);
    shell().addPreferencePage(extension.get(), &page, "load()", "save()");
    shell().registerExtension(SoMFFloat::getClassTypeId(), true, extension.get());
    shell().registerExtension(SoMFFloat::getClassTypeId(), false, extension.get());
    extension.reset();
    EXPECT_EQ(textsOf(frame().viewMenu()->actions()), QStringList{});
    EXPECT_TRUE(shell().getPreferencePages().empty());
    EXPECT_TRUE(shell().getExtensions(SoMFFloat::getClassTypeId()).empty());
}

TEST_F(ShellTest, AnExtensionThatOutlivesTheShellIsForgottenByIt)
{
    shell().addViewToggle(&m_extension, true);
    shell().registerExtension(SoMFFloat::getClassTypeId(), true, new TestExtension);
    shell().getExtensions(SoMFFloat::getClassTypeId()).front()->setParent(&frame()); // goes with the window
    NscShellImpl::deleteInstance();
}

TEST_F(ShellTest, AnUnknownSenderTogglesNothing)
{
    shell().s_viewChanged(true);
    EXPECT_EQ(m_extension.m_calls, QStringList{});
}

TEST_F(ShellTest, AnExtensionHasOnePreferencePage)
{
    QWidget first;
    QWidget second;
    shell().addPreferencePage(&m_extension, &first, "load()", "save()");
    shell().addPreferencePage(&m_extension, &second, "reInit()", "store()");
    ASSERT_EQ(shell().getPreferencePages().size(), 1u);
    const auto& [extension, page] = *shell().getPreferencePages().begin();
    EXPECT_EQ(extension, &m_extension);
    EXPECT_EQ(page.page, &second);
    EXPECT_EQ(page.loadSlot, "reInit()");
    EXPECT_EQ(page.saveSlot, "store()");
    shell().removePreferencePage(&m_other);
    shell().removePreferencePage(&m_extension);
    EXPECT_TRUE(shell().getPreferencePages().empty());
}

TEST_F(ShellTest, APageThatItsOwnerDeletedIsNotShown)
{
    auto page = std::make_unique<QWidget>();
    shell().addPreferencePage(&m_extension, page.get(), "load()", "save()");
    page.reset();
    EXPECT_FALSE(shell().getPreferencePages().begin()->second.page);
}

TEST_F(ShellTest, TheStatusBarShowsMessagesAndWidgets)
{
    QStatusBar& bar = *frame().statusBar();
    shell().showStatusMessage(SbString(QString::fromUtf8("caf\u00e9 \u03a9")), 0);
    EXPECT_EQ(bar.currentMessage(), QString::fromUtf8("caf\u00e9 ?"));
    shell().clearStatusMessage();
    EXPECT_EQ(bar.currentMessage(), "");

    auto* label = new QLabel("count");
    shell().addStatusWidget(label, true, 1);
    EXPECT_EQ(label->parentWidget(), &bar);
    frame().show();
    EXPECT_TRUE(label->isVisible());
    shell().removeStatusWidget(label);
    EXPECT_FALSE(label->isVisible());
    auto* other = new QLabel("other");
    shell().addStatusWidget(other, false, 0);
    EXPECT_EQ(other->parentWidget(), &bar);
}
