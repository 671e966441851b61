#include "HostFixture.h"

#include <examples/hosts/child_window/ChildWindowPanel.h>

#include <QPushButton>
#include <memory>

namespace {

using ChildWindowHost = HostTest;

} // namespace

TEST_F(ChildWindowHost, IsTheParentOfTheInspectorAndFollowed)
{
    auto host = std::make_unique<ChildWindowPanel>();
    host->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(host.get()));
    QTest::mouseClick(&host->inspectButton(), Qt::LeftButton);
    ASSERT_EQ(_isRunning(), 1);
    EXPECT_EQ(frame().parentWidget(), host.get());
    EXPECT_TRUE(frame().isWindow());

    SoTreeViewItem* const balls = rowOf(topRow(), "balls");
    ASSERT_TRUE(balls);
    balls->setExpanded(true);
    const int before = host->scene().numBalls();
    EXPECT_EQ(balls->childCount(), before);
    ASSERT_TRUE(QTest::qWaitFor([&] { return host->scene().numBalls() != before; }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return balls->childCount() == host->scene().numBalls(); }));

    host.reset();
    EXPECT_EQ(_isRunning(), 0);
    EXPECT_EQ(NscShell::getInstance(), nullptr);
}
