#pragma once

#include "TestExtension.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/shell/NscShellImpl.h>
#include <vexel/io/SoDB.h>

#include <gtest/gtest.h>

/** A shell whose main window has its menus. */
class ShellTest : public testing::Test {
protected:
    ShellTest()
    {
        SoDB::init();
        frame().setUp(&m_manager, SoNodescopeMainFrame::Hosting::Standalone);
    }
    ~ShellTest() override { NscShellImpl::deleteInstance(); }

    NscShellImpl& shell() { return *NscShellImpl::getInstance(); }
    SoNodescopeMainFrame& frame() { return *shell().getMainFrame(); }

    SoCommandManager m_manager;
    TestExtension m_extension;
    TestExtension m_other{"Other"};
};
