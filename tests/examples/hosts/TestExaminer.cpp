#include "HostFixture.h"

#include <examples/hosts/examiner/ExaminerWindow.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTransform.h>

#include <QAction>
#include <memory>

namespace {

class ExaminerHost : public HostTest {
protected:
    void SetUp() override
    {
        m_host = std::make_unique<ExaminerWindow>();
        m_host->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_host.get()));
        m_host->inspectAction().trigger();
        ASSERT_EQ(_isRunning(), 1);
        m_balls = rowOf(rowOf(topRow(), "machine"), "balls");
        ASSERT_TRUE(m_balls);
        m_balls->setExpanded(true);
    }

    std::unique_ptr<ExaminerWindow> m_host;
    SoTreeViewItem* m_balls = nullptr;
};

} // namespace

TEST_F(ExaminerHost, IsFollowedWhileItChanges)
{
    EXPECT_EQ(m_balls->childCount(), m_host->scene().numBalls());
    const int before = m_host->scene().numBalls();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_host->scene().numBalls() != before; })); // by its timer
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_balls->childCount() == m_host->scene().numBalls(); }));
    while (m_host->scene().numBalls() > 0)
        m_host->scene().step();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_balls->childCount() == m_host->scene().numBalls(); }));
}

TEST_F(ExaminerHost, GoesOnMoving)
{
    const auto* transform = static_cast<SoTransform*>(SoNode::getByName("turn"));
    const SbRotation before = transform->rotation.getValue();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !transform->rotation.getValue().equals(before, 1e-3f); }));
}

TEST_F(ExaminerHost, AClickInPickingModeSelectsTheRow)
{
    QWidget* const picture = m_host->viewer().getGLWidget();
    const QPoint block = picture->rect().center() + QPoint(0, picture->height() / 8);
    SoTreeViewItem* const before = tree().currentRow();
    QTest::mouseClick(picture, Qt::LeftButton, {}, block);
    EXPECT_EQ(tree().currentRow(), before); // it turned the camera
    QTest::keyClick(picture, Qt::Key_Escape);
    QTest::mouseClick(picture, Qt::LeftButton, {}, block);
    ASSERT_TRUE(tree().currentRow());
    EXPECT_EQ(tree().currentRow()->node()->getName(), SbName("block"));
}

TEST_F(ExaminerHost, GoesOnAfterAQuitAndCanBeInspectedAgain)
{
    for (int round = 0; round < 3; ++round) {
        frame().action(ActionId::Quit)->trigger();
        EXPECT_EQ(_isRunning(), 0);
        ASSERT_TRUE(QTest::qWaitFor([] { return NscShell::getInstance() == nullptr; })); // the host serves it
        EXPECT_TRUE(m_host->isVisible());
        m_host->inspectAction().trigger();
        ASSERT_EQ(_isRunning(), 1);
    }
}

TEST_F(ExaminerHost, MayGoWhileItIsInspected)
{
    m_host.reset();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(NscShell::getInstance(), nullptr);
}
