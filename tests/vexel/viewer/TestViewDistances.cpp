#include <gtest/gtest.h>

#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/actions/SoWriteAction.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoPerspectiveCamera.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/viewer/SoQt.h>
#include <vexel/viewer/SoQtExaminerViewer.h>

#include <QMainWindow>
#include <QTest>

namespace {

/** A viewer on a scene whose camera, by its own distances, sees nothing of the cube. */
class ViewDistances : public testing::TestWithParam<bool> {
protected:
    void SetUp() override
    {
        SoQt::init(&window);
        root->ref();
        camera->position = SbVec3f(0, 0, 20);
        camera->nearDistance = 1;
        camera->farDistance = 5;
        root->addChild(camera);
        root->addChild(cube);
        viewer = std::make_unique<SoQtExaminerViewer>(&window, "Viewer");
        window.setCentralWidget(viewer->getWidget());
        window.resize(600, 500);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    void TearDown() override
    {
        viewer.reset();
        root->unref();
        SoQt::finish();
    }

    std::string text() const
    {
        SoOutput out;
        SoWriteAction(&out).apply(root);
        return out.getText();
    }
    bool isCubeDrawn() const
    {
        const QImage picture = viewer->getGLWidget()->grab().toImage();
        return qGray(picture.pixel(picture.rect().center())) > 60;
    }
    bool isCubePicked() const
    {
        SoRayPickAction pick(viewer->getViewportRegion());
        pick.setNormalizedPoint(SbVec2f(0.5f, 0.5f));
        pick.apply(root);
        return pick.getPickedPoint() != nullptr;
    }

    QMainWindow window;
    SoSeparator* root = new SoSeparator;
    SoCamera* camera = GetParam() ? static_cast<SoCamera*>(new SoPerspectiveCamera) : new SoOrthographicCamera;
    SoCube* cube = new SoCube;
    std::unique_ptr<SoQtExaminerViewer> viewer;
};

TEST_P(ViewDistances, FitTheSceneWithoutChangingIt)
{
    const std::string before = text();
    EXPECT_FALSE(isCubePicked());
    viewer->setSceneGraph(root);
    ASSERT_EQ(viewer->getCamera(), camera);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isCubeDrawn(); }));
    EXPECT_TRUE(isCubePicked());
    EXPECT_EQ(text(), before);

    cube->depth = 30;
    EXPECT_TRUE(QTest::qWaitFor([this] { return isCubeDrawn(); }));
    cube->depth = 2;
    EXPECT_EQ(text(), before.substr(0, before.rfind("Cube {")) + "Cube {\n    depth 2\n  }\n}\n");

    viewer->setSceneGraph(nullptr);
    EXPECT_FALSE(isCubePicked()) << "the camera is the scene's own again";
}

TEST_P(ViewDistances, OutliveACameraThatIsTakenAway)
{
    viewer->setSceneGraph(root);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isCubeDrawn(); }));
    EXPECT_EQ(camera->getRefCount(), 1) << "it is the scene's alone";
    root->removeChild(camera);
    EXPECT_TRUE(viewer->getCamera()) << "one of the viewer's own";
    viewer->getGLWidget()->grab();
    viewer->setSceneGraph(root);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isCubeDrawn(); }));
}

INSTANTIATE_TEST_SUITE_P(Kinds, ViewDistances, testing::Bool(),
                         [](const auto& info) { return std::string(info.param ? "Perspective" : "Parallel"); });

} // namespace
