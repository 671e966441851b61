#include "HostState.h"
#include "InspectionFixture.h"

#include <extension/NscPluginsManager.h>
#include <vexel/base/SoErrorStack.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/viewer/SoQtExaminerViewer.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QPixmapCache>
#include <malloc.h>

namespace {

constexpr int Warm_up = 20;
constexpr int Rounds = 200;
constexpr int Many_rounds = 1000;
/** What a round may leave behind at most, for what Qt and the allocator keep; a window takes some hundred kilobytes. */
constexpr std::size_t Most_bytes_a_round = 1000;

class ManyStarts : public InspectionTest {
protected:
    ManyStarts()
    {
        SoErrorStack::setHandlerCallback([](const SoError*, void*) {}, this); // a host's own
        m_root->addChild(m_cube);
        m_viewer.setSceneGraph(m_root);
        m_window.setAttribute(Qt::WA_DontShowOnScreen);
        m_window.show();
    }
    ~ManyStarts() override
    {
        _stop();
        SoErrorStack::setHandlerCallback(nullptr);
    }

    template <class Start>
    void startAndStop(Start start, int rounds = Rounds)
    {
        const auto round = [&] {
            start();
            ASSERT_EQ(_isRunning(), 1);
            _stop();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        };
        for (int i = 0; i < Warm_up; ++i)
            round();
        QPixmapCache::clear(); // which Qt keeps within its limit by itself
        const HostState before(*m_root, m_window);
        const std::size_t bytesBefore = mallinfo2().uordblks;
        for (int i = 0; i < rounds; ++i)
            round();
        QPixmapCache::clear();
        const std::size_t bytesAfter = mallinfo2().uordblks;
        EXPECT_LT(bytesAfter, bytesBefore + std::size_t(rounds) * Most_bytes_a_round);
        HostState(*m_root, m_window).expectSameAs(before);
    }

    SoCube* m_cube = new SoCube;
    QWidget m_window;
    SoQtExaminerViewer m_viewer{&m_window};
};

} // namespace

TEST_F(ManyStarts, OfANode)
{
    startAndStop([this] { _startNode(m_root, nullptr); });
}

TEST_F(ManyStarts, OfANodeInsideAWindow)
{
    startAndStop([this] { _startNode(m_root, &m_window); });
}

TEST_F(ManyStarts, OfARenderArea)
{
    startAndStop([this] { _startRenderArea(&m_viewer); });
}

TEST_F(ManyStarts, OfASceneManager)
{
    startAndStop([this] { _startSceneManager(m_viewer.getSceneManager(), nullptr); });
}

TEST_F(ManyStarts, ByTheKeyOfAViewer)
{
    startAndStop([this] { QTest::keyClick(m_viewer.getGLWidget(), Qt::Key_F12, Qt::ShiftModifier); });
}

TEST_F(ManyStarts, WithTheFieldEditors)
{
    SoPreferences::removeValue("VXL_NODESCOPE_CONFIGURATION_FILE"); // so that the built-in one counts
    startAndStop(
        [this] {
            _startNode(m_root, nullptr);
            NscServices::getInstance()->setSelectedField(&m_cube->width);
            EXPECT_TRUE(NscPluginsManager::getInstance()->getProblems().empty());
        },
        Many_rounds);
}
