#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <vexel/actions/SoOffscreenRenderArea.h>
#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

class OffscreenArea : public testing::Test {
protected:
    void SetUp() override
    {
        SoDB::init();
        area->ref();
        area->setViewportRegion(SbViewportRegion(64, 48));
        auto* root = new SoSeparator;
        root->addChild(new SoCube);
        area->setSceneGraph(root);
    }
    void TearDown() override { area->unref(); }

    SbString file(const char* name) const { return SbString(folder.filePath(name).toUtf8().constData()); }

    SoOffscreenRenderArea* area = new SoOffscreenRenderArea;
    QTemporaryDir folder;
};

TEST_F(OffscreenArea, WritesAPictureOfAllThatThereIs)
{
    ASSERT_TRUE(area->renderToFile(file("cube.png")));
    const QImage picture(folder.filePath("cube.png"));
    ASSERT_EQ(QSize(64, 48), picture.size());
    EXPECT_GT(picture.pixelColor(32, 24).red(), 100);
    EXPECT_EQ(0, picture.pixelColor(1, 1).red());
}

TEST_F(OffscreenArea, LeavesTheGraphAsItIs)
{
    SoNode* root = area->getSceneGraph();
    area->render();
    EXPECT_EQ(1, root->getChildren()->getLength());
    EXPECT_EQ(1, root->getRefCount());
}

TEST_F(OffscreenArea, RefusesUnknownFormatsAndPlacesThatCannotBeWritten)
{
    EXPECT_FALSE(area->renderToFile(file("cube.unknown")));
    EXPECT_FALSE(area->renderToFile(file("no/such/folder/cube.png")));
    area->setViewportRegion(SbViewportRegion(0, 0));
    EXPECT_FALSE(area->renderToFile(file("cube.png")));
    area->setSceneGraph(nullptr);
    EXPECT_TRUE(area->render().isNull());
}

TEST_F(OffscreenArea, DrawsALargePictureInPiecesThatFit)
{
    // The large picture, made small again, is the small picture.
    area->setViewportRegion(SbViewportRegion(150, 100));
    const QImage small = area->render();
    area->setViewportRegion(SbViewportRegion(4500, 3000));
    const QImage large = area->render();
    ASSERT_EQ(QSize(4500, 3000), large.size());
    const QImage reduced = large.scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int different = 0;
    for (int y = 0; y < small.height(); ++y) {
        for (int x = 0; x < small.width(); ++x)
            different += std::abs(qRed(reduced.pixel(x, y)) - qRed(small.pixel(x, y))) > 40;
    }
    EXPECT_LT(different, small.width()); // edges only
    EXPECT_GT(qRed(small.pixel(75, 50)), 100);
}

TEST_F(OffscreenArea, WritesPostScript)
{
    ASSERT_TRUE(area->renderToFile(file("cube.ps")));
    QFile page(folder.filePath("cube.ps"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    EXPECT_TRUE(text.startsWith("%!PS-Adobe-3.0"));
    EXPECT_TRUE(text.contains("%%BoundingBox: 0 0 64 48") || text.contains("%%PageBoundingBox: 0 0 64 48"));
    EXPECT_TRUE(text.trimmed().endsWith("%%EOF"));
}

TEST_F(OffscreenArea, LeavesTheOldFileWhereTheNewOneCannotBeWritten)
{
    ASSERT_TRUE(area->renderToFile(file("cube.png")));
    area->setViewportRegion(SbViewportRegion(0, 0));
    EXPECT_FALSE(area->renderToFile(file("cube.png")));
    EXPECT_EQ(QSize(64, 48), QImage(folder.filePath("cube.png")).size());
    EXPECT_EQ(1, QDir(folder.path()).entryList(QDir::Files).size());
}

} // namespace
