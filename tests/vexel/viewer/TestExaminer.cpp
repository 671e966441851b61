#include <gtest/gtest.h>

#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoExtSelection.h>
#include <vexel/nodes/SoLocateHighlight.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoPerspectiveCamera.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/nodes/SoTranslation.h>
#include <vexel/viewer/SoQt.h>
#include <vexel/viewer/SoQtExaminerViewer.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QMainWindow>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <cmath>

namespace {

/** An examiner viewer in a window, on a cube at (3, 0, 0) below a selection node. */
class Examiner : public testing::Test {
protected:
    void SetUp() override
    {
        SoQt::init(&window);
        root = new SoSelection;
        root->ref();
        root->policy = SoSelection::SINGLE;
        auto* translation = new SoTranslation;
        translation->translation = SbVec3f(3, 0, 0);
        cube = new SoCube;
        root->addChild(translation);
        root->addChild(cube);
        viewer = std::make_unique<SoQtExaminerViewer>(&window, "Examiner");
        viewer->setAnimationEnabled(false);
        window.setCentralWidget(viewer->getWidget());
        window.resize(600, 500);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        viewer->setSceneGraph(root);
        gl = viewer->getGLWidget();
    }
    void TearDown() override
    {
        viewer.reset();
        root->deselectAll();
        root->unref();
        SoQt::finish();
    }

    void drag(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(gl, button, modifiers, from);
        for (int step = 1; step <= 10; ++step) {
            const QPoint place = from + (to - from) * step / 10;
            QMouseEvent move(QEvent::MouseMove, place, gl->mapToGlobal(place), Qt::NoButton, button, modifiers);
            QApplication::sendEvent(gl, &move);
        }
        QTest::mouseRelease(gl, button, modifiers, to);
    }
    SbVec3f focus() const
    {
        const SoCamera* camera = viewer->getCamera();
        SbVec3f direction;
        camera->orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
        return camera->position.getValue() + direction * camera->focalDistance.getValue();
    }
    QPoint middle() const { return gl->rect().center(); }

    QMainWindow window;
    SoSelection* root = nullptr;
    SoCube* cube = nullptr;
    std::unique_ptr<SoQtExaminerViewer> viewer;
    QWidget* gl = nullptr;
};

TEST_F(Examiner, SeesTheWholeSceneAtFirst)
{
    EXPECT_TRUE(viewer->getCamera()->isOfType(SoPerspectiveCamera::getClassTypeId()));
    EXPECT_TRUE(focus().equals(SbVec3f(3, 0, 0), 0.01f)) << focus()[0];
    EXPECT_TRUE(viewer->isViewing());
    EXPECT_EQ(viewer->getSceneGraph(), root);
}

TEST_F(Examiner, UsesACameraOfTheScene)
{
    auto* own = new SoOrthographicCamera;
    root->insertChild(own, 0);
    viewer->setSceneGraph(root);
    EXPECT_EQ(viewer->getCamera(), own);
    viewer->toggleCameraType();
    EXPECT_EQ(viewer->getCamera(), own);
    root->removeChild(own);
    viewer->setSceneGraph(root);
    EXPECT_NE(viewer->getCamera(), own);
}

TEST_F(Examiner, ADragTurnsAboutTheFocalPoint)
{
    const SbVec3f before = viewer->getCamera()->position.getValue();
    const float distance = viewer->getCamera()->focalDistance.getValue();
    drag(Qt::LeftButton, Qt::NoModifier, middle(), middle() + QPoint(120, 0));
    const SbVec3f after = viewer->getCamera()->position.getValue();
    EXPECT_GT((after - before).length(), distance / 10);
    EXPECT_LT(after[0], before[0]) << "the scene turns with the hand";
    EXPECT_TRUE(focus().equals(SbVec3f(3, 0, 0), 0.01f));
    EXPECT_NEAR(viewer->getCamera()->focalDistance.getValue(), distance, 1e-4f);
}

TEST_F(Examiner, TheMiddleButtonMovesWhatIsSeenWithTheHand)
{
    const SbRotation before = viewer->getCamera()->orientation.getValue();
    drag(Qt::MiddleButton, Qt::NoModifier, middle(), middle() + QPoint(60, 0));
    EXPECT_TRUE(viewer->getCamera()->orientation.getValue().equals(before, 1e-6f));
    EXPECT_LT(focus()[0], 2.9f);
    EXPECT_NEAR(focus()[1], 0, 1e-4f);
    viewer->viewAll();
    drag(Qt::LeftButton, Qt::ShiftModifier, middle(), middle() + QPoint(0, -60));
    EXPECT_LT(focus()[1], -0.1f);
}

TEST_F(Examiner, TheWheelAndCtrlMoveNearerAndAway)
{
    const float before = viewer->getCamera()->focalDistance.getValue();
    QWheelEvent wheel(middle(), gl->mapToGlobal(middle()), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(gl, &wheel);
    const float nearer = viewer->getCamera()->focalDistance.getValue();
    EXPECT_LT(nearer, before);
    drag(Qt::LeftButton, Qt::ControlModifier, middle(), middle() + QPoint(0, 80));
    EXPECT_GT(viewer->getCamera()->focalDistance.getValue(), nearer);
    EXPECT_TRUE(focus().equals(SbVec3f(3, 0, 0), 0.01f));
}

TEST_F(Examiner, AClickSelectsWhatIsUnderItAndADragDoesNot)
{
    drag(Qt::LeftButton, Qt::NoModifier, middle(), middle() + QPoint(50, 20));
    EXPECT_EQ(root->getNumSelected(), 0);
    QTest::mouseClick(gl, Qt::LeftButton, Qt::NoModifier, middle());
    ASSERT_EQ(root->getNumSelected(), 1);
    EXPECT_EQ(root->getPath(0)->getNode(1), cube);
    QTest::mouseClick(gl, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    EXPECT_EQ(root->getNumSelected(), 0);
    viewer->setViewing(false);
    QTest::mouseClick(gl, Qt::LeftButton, Qt::NoModifier, middle());
    EXPECT_EQ(root->getNumSelected(), 1);
}

TEST_F(Examiner, GoesOnTurningWhenLetGoInMotion)
{
    viewer->setAnimationEnabled(true);
    drag(Qt::LeftButton, Qt::NoModifier, middle(), middle() + QPoint(80, 0));
    EXPECT_TRUE(viewer->isAnimating());
    const SbVec3f before = viewer->getCamera()->position.getValue();
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewer->getCamera()->position.getValue() != before; }));
    QTest::mousePress(gl, Qt::LeftButton, Qt::NoModifier, middle());
    EXPECT_FALSE(viewer->isAnimating());
    QTest::mouseRelease(gl, Qt::LeftButton, Qt::NoModifier, middle());
}

TEST_F(Examiner, KeysAndButtonsSwitchModes)
{
    QTest::keyClick(gl, Qt::Key_Escape);
    EXPECT_FALSE(viewer->isViewing());
    QTest::keyClick(gl, Qt::Key_S);
    EXPECT_TRUE(viewer->isSeekMode());
    QTest::keyClick(gl, Qt::Key_S);
    QTest::keyClick(gl, Qt::Key_P);
    EXPECT_TRUE(viewer->getCamera()->isOfType(SoOrthographicCamera::getClassTypeId()));
    EXPECT_TRUE(focus().equals(SbVec3f(3, 0, 0), 0.01f));
    QTest::keyClick(gl, Qt::Key_P);
    EXPECT_TRUE(viewer->getCamera()->isOfType(SoPerspectiveCamera::getClassTypeId()));

    const QList<QToolButton*> buttons = viewer->getWidget()->findChildren<QToolButton*>();
    EXPECT_EQ(buttons.size(), 8);
    for (QToolButton* button : buttons) {
        EXPECT_FALSE(button->icon().isNull()) << button->accessibleName().toStdString();
        EXPECT_FALSE(button->accessibleName().isEmpty());
    }
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    EXPECT_TRUE(viewer->isViewing());
    EXPECT_TRUE(buttons[1]->isChecked());
    EXPECT_FALSE(buttons[0]->isChecked());
    QTest::mouseClick(buttons[6], Qt::LeftButton);
    EXPECT_FALSE(viewer->isHeadlight());
    viewer->setDecoration(false);
    EXPECT_FALSE(buttons[0]->isVisible());
}

TEST_F(Examiner, GoesHomeAndSeeks)
{
    viewer->saveHomePosition();
    const SbVec3f home = viewer->getCamera()->position.getValue();
    drag(Qt::LeftButton, Qt::NoModifier, middle(), middle() + QPoint(90, 40));
    QTest::keyClick(gl, Qt::Key_H);
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewer->getCamera()->position.getValue().equals(home, 1e-4f); }));
    const float before = viewer->getCamera()->focalDistance.getValue();
    viewer->setSeekMode(true);
    QTest::mouseClick(gl, Qt::LeftButton, Qt::NoModifier, middle());
    EXPECT_FALSE(viewer->isSeekMode());
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewer->getCamera()->focalDistance.getValue() < before * 0.6f; }));
}

TEST_F(Examiner, DrawsTheSceneAndDrawsAgainWhenItChanges)
{
    const auto litPixels = [&] {
        const QImage picture = static_cast<QWidget*>(gl)->grab().toImage();
        int lit = 0;
        for (int y = 0; y < picture.height(); y += 4) {
            for (int x = 0; x < picture.width(); x += 4)
                lit += qGray(picture.pixel(x, y)) > 60 ? 1 : 0;
        }
        return lit;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return litPixels() > 500; }));
    const int before = litPixels();
    cube->width = 0.2f;
    cube->height = 0.2f;
    EXPECT_TRUE(QTest::qWaitFor([&] { return litPixels() < before / 4; }));
    viewer->getSceneManager()->setBackgroundColorRGBA(SbColorRGBA(1, 1, 1, 1));
    EXPECT_TRUE(QTest::qWaitFor([&] { return litPixels() > before; }));
}

TEST_F(Examiner, AnEditorPutsACameraIntoAScene)
{
    SoQtExaminerViewer editor(&window, "Editor", true, SoQtFullViewer::BUILD_NONE, SoQtFullViewer::EDITOR);
    const int before = root->getNumChildren();
    editor.setSceneGraph(root);
    ASSERT_EQ(before + 1, root->getNumChildren());
    EXPECT_EQ(root->getChild(0), editor.getCamera());
    SbVec3f direction;
    editor.getCamera()->orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
    EXPECT_GT(direction.dot(SbVec3f(3, 0, 0) - editor.getCamera()->position.getValue()), 0);
    EXPECT_NEAR(3, editor.getCamera()->position.getValue()[0], 0.01f);
    editor.setSceneGraph(root);
    EXPECT_EQ(before + 1, root->getNumChildren());
    editor.setSceneGraph(nullptr);
}

TEST_F(Examiner, AWindowSendsTheMouseToLassos)
{
    auto* lasso = new SoExtSelection;
    lasso->ref();
    lasso->lassoType = SoExtSelection::RECTANGLE;
    lasso->addChild(cube);
    viewer->setSceneGraph(lasso);
    viewer->setViewing(false);
    drag(Qt::LeftButton, Qt::NoModifier, QPoint(5, 5), QPoint(gl->width() - 5, gl->height() - 5));
    EXPECT_EQ(1, lasso->getNumSelected());
    drag(Qt::LeftButton, Qt::NoModifier, QPoint(5, 5), QPoint(30, 30));
    EXPECT_EQ(0, lasso->getNumSelected());
    viewer->setSceneGraph(nullptr);
    lasso->unref();
}

TEST_F(Examiner, APointerThatLeavesTheWindowIsOverNothing)
{
    auto* highlight = new SoLocateHighlight;
    highlight->ref();
    highlight->addChild(cube);
    viewer->setSceneGraph(highlight);
    viewer->setViewing(false);
    QMouseEvent move(QEvent::MouseMove, middle(), gl->mapToGlobal(middle()), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(gl, &move);
    EXPECT_TRUE(highlight->isHighlighted());
    QCursor::setPos(gl->mapToGlobal(QPoint(-20, -20)));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(gl, &leave);
    EXPECT_FALSE(highlight->isHighlighted());
    viewer->setSceneGraph(nullptr);
    highlight->unref();
}

} // namespace
