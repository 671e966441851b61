#include <tests/support/ProgramRun.h>

#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

namespace {

/** How many colours a part of a picture has. */
std::size_t coloursIn(const QImage& picture, const QRect& part)
{
    std::set<QRgb> colours;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            colours.insert(picture.pixel(x, y));
    }
    return colours.size();
}

class Screenshot : public testing::Test {
protected:
    QImage take(const QStringList& files)
    {
        const QString file = m_folder.filePath("window.png");
        const ProgramRun run = runProgram("nodescope", QStringList{"--screenshot", file} + files);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.err, "");
        return QImage(file);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Screenshot, ShowsTheRowsOfTheTree)
{
    const QImage empty = take({});
    const QImage scene = take({SCENE_FOLDER "/workbench.vx"});
    ASSERT_EQ(scene.size(), empty.size());
    ASSERT_GT(scene.width(), 1000);
    // Below the first two rows only a scene with more nodes has icons and texts.
    const QRect rows(10, 230, 240, 100);
    EXPECT_LT(coloursIn(empty, rows), 6u);
    EXPECT_GT(coloursIn(scene, rows), 40u);
}

TEST_F(Screenshot, ShowsThe3DView)
{
    const QRect view(520, 180, 600, 420);
    EXPECT_GT(coloursIn(take({}), view), 20u); // the gradient that stands there before a scene is opened
    const QImage scene = take({SCENE_FOLDER "/workbench.vx"});
    EXPECT_GT(coloursIn(scene, view), 200u);
}
