#include "MainFrameFixture.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace {

bool acceptsDrag(QWidget& widget, const QMimeData& data)
{
    QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

void drop(QWidget& widget, const QMimeData& data)
{
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile("/tmp/a.vx")});
    ASSERT_TRUE(acceptsDrag(widget, file)); // makes the widget the one that is dropped on
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

TEST_F(MainFrameTest, OnlyDragsWithUrlsAreAccepted)
{
    SoNodescopeMainFrame& frame = makeFrame();
    EXPECT_TRUE(frame.acceptDrops());
    QMimeData data;
    EXPECT_FALSE(acceptsDrag(frame, data));
    data.setText("Nodescope/Drop");
    EXPECT_FALSE(acceptsDrag(frame, data));
    data.setUrls({QUrl::fromLocalFile("/tmp/a.vx")});
    EXPECT_TRUE(acceptsDrag(frame, data));
}

TEST_F(MainFrameTest, ADropOpensTheFirstFileOnly)
{
    SoNodescopeMainFrame& frame = makeFrame();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/tmp/first one.vx"), QUrl::fromLocalFile("/tmp/second.vx")});
    drop(frame, data);
    EXPECT_EQ(m_files.takeCalls(), QStringList{"openFile /tmp/first one.vx"});
}

TEST_F(MainFrameTest, ADropWithoutUrlsIsPassedOver)
{
    QMimeData data;
    data.setText("treeviewnodeobject");
    drop(makeFrame(), data);
    EXPECT_EQ(m_files.takeCalls(), QStringList());
}
