#include "Exports.h"

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoSearchAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SoPath.h>
#include <vexel/base/SoPathList.h>
#include <vexel/nodes/SoDrawStyle.h>

#include <QGuiApplication>
#include <gtest/gtest.h>


namespace {

/** Triangles are found where faces are filled. */
void fillAll(SoNode* root)
{
    SoSearchAction search;
    search.setType(SoDrawStyle::getClassTypeId());
    search.setInterest(SoSearchAction::ALL);
    search.apply(root);
    for (int i = 0; i < search.getPaths().getLength(); ++i)
        static_cast<SoDrawStyle*>(search.getPaths()[i]->getTail())->style = SoDrawStyle::FILLED;
}

class GalleryScene : public testing::TestWithParam<const char*> {
protected:
    // Fonts need an application. It is kept to the end of the process: the platform plug-in does not give back its
    // screen.
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "test";
        static char* argv[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static auto* application = new QGuiApplication(argc, argv);
        ASSERT_EQ(application, QCoreApplication::instance());
    }
};

TEST_P(GalleryScene, isInTheFileAsItIsSeen)
{
    const ReadScene scene = ReadScene::ofFile(std::string(GALLERY) + "/" + GetParam());
    fillAll(scene.root());
    SoGetBoundingBoxAction bounds(SbViewportRegion(1208, 1024));
    bounds.apply(scene.root());
    const double diagonal = bounds.getBoundingBox().getSize().length();

    const ReadFile file = exported(scene.root());
    const Seen expected = seenIn(scene.root());
    EXPECT_GT(expected.triangles.size() + expected.lines.size(), 50u);
    EXPECT_EQ("", differenceOf(expected, seenIn(file), 1e-5 * diagonal));
}

INSTANTIATE_TEST_SUITE_P(U3D, GalleryScene,
                         testing::Values("assembly.vx", "glass.vx", "groups.vx", "interior.vx", "lines.vx", "solids.vx",
                                         "text.vx", "textures.vx", "workbench.vx"),
                         [](const auto& info) {
                             const std::string name = info.param;
                             return name.substr(0, name.find('.'));
                         });

} // namespace
