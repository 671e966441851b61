#include <gtest/gtest.h>

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

} // namespace
