#pragma once

#include "RecordingManager.h"
#include "RecordingSceneFiles.h"

#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/preferences/SoPreferenceStore.h>

#include <QApplication>
#include <QSettings>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

/** A main frame whose every action reaches a recorder; settings are empty at first. */
class MainFrameTest : public testing::Test {
protected:
    using Hosting = SoNodescopeMainFrame::Hosting;

    MainFrameTest() { m_disk.clear(); }
    ~MainFrameTest() override
    {
        m_frame.reset();
        SoPreferenceStore::deleteInstance();
    }

    SoNodescopeMainFrame& makeFrame(Hosting hosting = Hosting::Standalone)
    {
        m_frame = std::make_unique<SoNodescopeMainFrame>();
        m_frame->setUp(&m_manager, hosting);
        m_frame->setSceneFiles(&m_files);
        return *m_frame;
    }

    /** Shows the frame and gives it the keyboard. */
    SoNodescopeMainFrame& showFrame()
    {
        SoNodescopeMainFrame& frame = makeFrame();
        frame.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&frame));
        QApplication::setActiveWindow(&frame);
        frame.setFocus();
        return frame;
    }

    RecordingManager m_manager;
    RecordingSceneFiles m_files;
    std::unique_ptr<SoNodescopeMainFrame> m_frame;
    QSettings m_disk{"Nodescope", "Nodescope"};
};

inline std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    return stream << text.toStdString();
}

inline std::ostream& operator<<(std::ostream& stream, const QStringList& texts)
{
    return stream << texts.join(" | ").toStdString();
}
