#include "InspectionFixture.h"

#include <nodescope/preferences/SoPreferenceStore.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <vexel/actions/SoBoxHighlightRenderAction.h>
#include <vexel/actions/SoHaloHighlightRenderAction.h>
#include <vexel/actions/SoLineHighlightRenderAction.h>
#include <vexel/viewer/SoGuiRenderArea.h>
#include <vexel/viewer/SoSceneManager.h>

namespace {

struct ModeCase {
    const char* mode; ///< null: not set
    SoType (*expected)();
};

class HighlightMode : public InspectionTest, public testing::WithParamInterface<ModeCase> {
protected:
    ~HighlightMode() override
    {
        _stop();
        SoPreferences::removeValue("NODESCOPE_HIGHLIGHTING_MODE");
    }

    SoHighlightRenderAction* startStandalone()
    {
        static int count = 1;
        static char name[] = "test";
        static char* arguments[] = {name, nullptr};
        SoNodescopeImpl::startStandalone(count, arguments);
        return dynamic_cast<SoHighlightRenderAction*>(
            NscServices::getInstance()->getSceneManager()->getGLRenderAction());
    }
};

} // namespace

TEST_P(HighlightMode, ChoosesTheAction)
{
    if (GetParam().mode)
        SoPreferences::setValue("NODESCOPE_HIGHLIGHTING_MODE", GetParam().mode);
    SoHighlightRenderAction* const action = startStandalone();
    ASSERT_TRUE(action);
    EXPECT_TRUE(action->getTypeId() == GetParam().expected());
    EXPECT_TRUE(action->isVisible());
    const auto* halo = dynamic_cast<SoHaloHighlightRenderAction*>(action);
    EXPECT_TRUE(!halo || halo->isHaloAlwaysVisible());
}

INSTANTIATE_TEST_SUITE_P(Table, HighlightMode,
                         testing::Values(ModeCase{nullptr, &SoLineHighlightRenderAction::getClassTypeId},
                                         ModeCase{"LINE", &SoLineHighlightRenderAction::getClassTypeId},
                                         ModeCase{"HALO", &SoHaloHighlightRenderAction::getClassTypeId},
                                         ModeCase{"BOX", &SoBoxHighlightRenderAction::getClassTypeId},
                                         ModeCase{"other", &SoLineHighlightRenderAction::getClassTypeId}));

TEST_F(InspectionTest, HighlightingSwitchedOffMarksNothing)
{
    SoPreferenceStore::getInstance()->writeHighlightSelectedNode(SoPreferenceStore::TreeViewGroup, false);
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    SoNodescopeImpl::startStandalone(count, arguments);
    const auto* action =
        dynamic_cast<SoHighlightRenderAction*>(NscServices::getInstance()->getSceneManager()->getGLRenderAction());
    ASSERT_TRUE(action);
    EXPECT_FALSE(action->isVisible());
    _stop();
    SoPreferenceStore::getInstance()->writeHighlightSelectedNode(SoPreferenceStore::TreeViewGroup, true);
}

namespace {

/** Number of pixels of the 3D view that are as red as the marks are. */
int redPixels()
{
    QWidget* const view = NscServices::getInstance()->getRenderArea()->getGLWidget();
    QCoreApplication::processEvents();
    const QImage picture = view->grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            count += colour.red() > 220 && colour.green() < 40 && colour.blue() < 40;
        }
    }
    return count;
}

} // namespace

TEST_F(InspectionTest, TheNodeOfTheCurrentRowIsMarkedInThe3DView)
{
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    SoNodescopeImpl::startStandalone(count, arguments);
    frame().openFile(write("a.vx", "#Vexel V2.1 ascii\nSeparator { Separator { Cube { } } Material { } }\n"));
    SoNodescopeTreeView& tree = *SoNodescopeViewer::getInstance()->treeView();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame()));
    tree.setCurrentItem(tree.topLevelItem(0)->child(1));
    EXPECT_EQ(redPixels(), 0);
    tree.setCurrentItem(tree.topLevelItem(0)->child(0));
    EXPECT_GT(redPixels(), 100);
}
