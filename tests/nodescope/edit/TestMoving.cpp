#include "EditFixture.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPixmap>

namespace {

class Moving : public EditTest {
protected:
    /** What a drag of one row onto another brings about, without the platform's part. */
    void dragTo(SoTreeViewItem* from, SoTreeViewItem* to, const QString& marker = "Nodescope/Drop")
    {
        view->show();
        view->expandAll();
        QApplication::processEvents();
        const QPoint start = view->visualItemRect(from).center();
        QTest::mousePress(view->viewport(), Qt::LeftButton, {}, start);
        QMimeData data;
        data.setText(marker);
        const QPoint end = to ? view->visualItemRect(to).center() : QPoint(10, view->viewport()->height() - 2);
        QDragEnterEvent enter(end, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDragMoveEvent move(end, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);
        EXPECT_TRUE(move.isAccepted());
        indicator = to ? indicatorAt(to) : std::string();
        QDropEvent drop(end, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &drop);
        EXPECT_TRUE(drop.isAccepted());
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, start);
    }
    /** What is painted around a row: a "frame", a "line" below it, or nothing. */
    std::string indicatorAt(const SoTreeViewItem* target) const
    {
        const QImage picture = view->viewport()->grab().toImage();
        const QRgb color = view->palette().color(QPalette::Highlight).rgb();
        const QRect place = view->visualItemRect(target);
        const auto isMarked = [&](int y) {
            const int x = picture.width() / 2;
            return picture.pixel(x, y) == color || picture.pixel(x, y + 1) == color || picture.pixel(x, y - 1) == color;
        };
        if (!isMarked(place.bottom()))
            return "";
        return isMarked(place.top() + 1) ? "frame" : "line";
    }

    std::string indicator; ///< what the last drag showed before the drop
};

} // namespace

TEST_F(Moving, IntoAGroupIsTakenBackAndMadeAgain)
{
    show("Separator { Group { Cube { } } Sphere { } Cone { } }");
    const std::string before = text();
    dragTo(row({2}), row({0}));
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n  Cone\n Sphere\n");
    EXPECT_EQ(view->currentItem(), row({0, 1})) << "the dragged row stays current";
    manager.undo();
    EXPECT_EQ(text(), before);
    manager.redo();
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n  Cone\n Sphere\n");
}

TEST_F(Moving, OntoALeafGoesBehindIt)
{
    show("Separator { Cube { } Sphere { } Cone { } }");
    const std::string before = text();
    dragTo(row({2}), row({0}));
    EXPECT_EQ(rows(), "Separator\n Cube\n Cone\n Sphere\n");
    manager.undo();
    EXPECT_EQ(text(), before);
    dragTo(row({0}), row({2}));
    EXPECT_EQ(rows(), "Separator\n Sphere\n Cone\n Cube\n");
    manager.undo();
    EXPECT_EQ(text(), before);
}

TEST_F(Moving, IsAnnouncedByAFrameOrALine)
{
    show("Separator { Group { } Cube { } Sphere { } }");
    view->setFocus();
    dragTo(row({2}), row({1}));
    EXPECT_EQ(indicator, "line") << "behind the cube";
    dragTo(row({2}), row({0}));
    EXPECT_EQ(indicator, "frame") << "into the group";
    QTest::keyPress(view.get(), Qt::Key_Space);
    dragTo(row({0, 0}), row({0}));
    EXPECT_EQ(indicator, "line") << "behind the group";
    dragTo(row({0}), row({2}));
    EXPECT_EQ(indicator, "") << "the space bar is for groups";
    QTest::keyRelease(view.get(), Qt::Key_Space);
}

TEST_F(Moving, OntoTheParentBecomesItsFirstChild)
{
    show("Separator { Cube { } Sphere { } }");
    dragTo(row({1}), top());
    EXPECT_EQ(rows(), "Separator\n Sphere\n Cube\n");
}

TEST_F(Moving, WithTheSpaceBarGoesBehindAGroup)
{
    show("Separator { Group { } Group { Cube { } } }");
    const std::string before = text();
    view->setFocus();
    QTest::keyPress(view.get(), Qt::Key_Space);
    dragTo(row({1, 0}), row({0}));
    EXPECT_EQ(rows(), "Separator\n Group\n Cube\n Group\n");
    manager.undo();
    EXPECT_EQ(text(), before);
    QTest::keyRelease(view.get(), Qt::Key_Space);
    dragTo(row({1, 0}), row({0}));
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n Group\n");
}

TEST_F(Moving, ToTheSameIndexElsewhereIsNotRecorded)
{
    show("Separator { Group { Cube { } } Separator { } }");
    dragTo(row({0, 0}), row({1}));
    EXPECT_EQ(rows(), "Separator\n Group\n Separator\n  Cube\n");
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(Moving, IntoTheOwnSubGraphIsRefused)
{
    show("Separator { Group { Group { Cube { } } } }");
    const std::string before = text();
    dragTo(row({0}), row({0, 0}));
    dragTo(row({0}), row({0, 0, 0}));
    EXPECT_EQ(text(), before);
}

TEST_F(Moving, IntoTheOwnSubGraphByAnotherWayIsRefused)
{
    show("Separator { DEF a Group { DEF b Group { } } Group { USE b } }");
    const std::string before = text();
    dragTo(row({0}), row({1, 0})); // b, which also stands below a
    EXPECT_EQ(text(), before);
}

TEST_F(Moving, OnlyTheMarkerIsTaken)
{
    show("Separator { Group { } Cube { } }");
    const std::string before = text();
    dragTo(row({1}), row({0}), "something else");
    dragTo(row({1}), nullptr);
    dragTo(row({1}), row({1}));
    EXPECT_EQ(text(), before);
}

TEST_F(Moving, TheRootIsNotDragged)
{
    show("Separator { Group { } }");
    const std::string before = text();
    dragTo(top(), row({0}));
    EXPECT_EQ(text(), before);
}

TEST_F(Moving, KeepsMarksOfIgnoredRows)
{
    show("Separator { Group { Cube { } Sphere { } } Separator { Cone { } } }");
    row({0, 1})->setIgnored(true);
    dragTo(row({0, 1}), row({1, 0}));
    EXPECT_FALSE(action(ActionId::Undo).isEnabled()) << "index 1 as before";
    EXPECT_EQ(rows(), "Separator\n Group\n  Cube\n Separator\n  Cone\n  Sphere\n");
    EXPECT_TRUE(row({1, 1})->isIgnored());
}
