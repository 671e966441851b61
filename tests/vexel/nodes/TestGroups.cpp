#include "ShapeFixture.h"

#include <vector>

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoSearchAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoArray.h>
#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoPathSwitch.h>
#include <vexel/nodes/SoPerspectiveCamera.h>

namespace {

/** Collects the x coordinates of the places where shapes stand. */
class PlacesAction : public SoAction {
    SO_ACTION(PlacesAction, SoAction)
public:
    PlacesAction() = default;
    void visitShape(SoShape&) override { places.push_back(state()->model[3][0]); }

    std::vector<float> places;
};

class Groups : public ShapeTest {
protected:
    std::vector<float> placesIn(const std::string& text)
    {
        SoInput in;
        in.setBuffer(text.data(), text.size());
        SoSeparator* root = SoDB::readAll(&in);
        EXPECT_NE(root, nullptr);
        root->ref();
        PlacesAction places;
        places.apply(root);
        in.closeFile();
        root->unref();
        return places.places;
    }
};

using Places = std::vector<float>;
const std::string At1 = "Separator { Translation { translation 1 0 0 } Cube { } } ";
const std::string At2 = "Separator { Translation { translation 2 0 0 } Cube { } } ";
const std::string At3 = "Separator { Translation { translation 3 0 0 } Cube { } } ";

} // namespace

TEST_F(Groups, SwitchShowsWhatItSays)
{
    const auto shown = [&](const std::string& which) {
        return placesIn("Switch { " + which + " " + At1 + At2 + At3 + "}");
    };
    EXPECT_EQ(shown(""), Places{});
    EXPECT_EQ(shown("whichChild 1"), Places{2});
    EXPECT_EQ(shown("whichChild -3"), (Places{1, 2, 3}));
    EXPECT_EQ(shown("whichChild 3"), Places{});
    EXPECT_EQ(shown("whichChild -7"), Places{});
    EXPECT_EQ(placesIn("Switch { whichChild 1 Group { } Switch { whichChild -2 " + At1 + At2 + At3 + " } }"),
              Places{2});
}

TEST_F(Groups, SearchingAllFindsWhatASwitchHides)
{
    auto* root = new SoSeparator;
    root->ref();
    root->set("renderCaching OFF");
    const std::string text = "Switch { Cube { } }";
    SoInput in;
    in.setBuffer(text.data(), text.size());
    SoNode* hidden = nullptr;
    ASSERT_TRUE(SoDB::read(&in, hidden));
    root->addChild(hidden);
    SoSearchAction search;
    search.setType(SoCube::getClassTypeId());
    search.apply(root);
    EXPECT_EQ(search.getPath(), nullptr);
    search.setSearchingAll(true);
    search.apply(root);
    EXPECT_NE(search.getPath(), nullptr);
    search.reset();
    in.closeFile();
    root->unref();
}

TEST_F(Groups, LevelsFollowTheDistanceOfTheCamera)
{
    const auto shown = [&](const std::string& distance) {
        return placesIn("PerspectiveCamera { position 0 0 " + distance + " } LOD { range [ 10, 20 ] " + At1 + At2 +
                        At3 + "}");
    };
    EXPECT_EQ(shown("5"), Places{1});
    EXPECT_EQ(shown("15"), Places{2});
    EXPECT_EQ(shown("100"), Places{3});
    EXPECT_EQ(placesIn("LOD { range [ 10, 20 ] " + At1 + At2 + "}"), Places{1});
    EXPECT_EQ(placesIn("PerspectiveCamera { position 0 0 100 } LOD { range [ 10, 20 ] " + At1 + "}"), Places{1});
    EXPECT_EQ(placesIn("LOD { }"), Places{});
}

TEST_F(Groups, LevelsFollowTheAreaOnTheScreen)
{
    const auto shown = [&](const std::string& distance) {
        return placesIn("PerspectiveCamera { farDistance 1e5 position 0 0 " + distance +
                        " } LevelOfDetail { screenArea [ 500, 10 ] " + At1 + At2 + At3 + "}");
    };
    EXPECT_EQ(shown("6"), Places{1});
    EXPECT_EQ(shown("30"), Places{2});
    EXPECT_EQ(shown("3000"), Places{3});
}

TEST_F(Groups, ArrayCountsFromItsOrigin)
{
    EXPECT_EQ(placesIn("Array { numElements1 3 separation1 2 0 0 Cube { } }"), (Places{0, 2, 4}));
    EXPECT_EQ(placesIn("Array { numElements1 3 separation1 2 0 0 origin CENTER Cube { } }"), (Places{-2, 0, 2}));
    EXPECT_EQ(placesIn("Array { numElements1 3 separation1 2 0 0 origin LAST Cube { } }"), (Places{-4, -2, 0}));
    EXPECT_EQ(placesIn("Array { numElements1 2 numElements2 2 numElements3 2 Cube { } }").size(), 8u);
    EXPECT_EQ(placesIn("Array { numElements1 -4 Cube { } }"), Places{});
    EXPECT_EQ(placesIn("Array { numElements1 3 Switch { whichChild -2 " + At1 + At2 + "} }"), (Places{1, 3, 3}));
}

TEST_F(Groups, CopiesAndInstancesHaveTheirOwnPlaces)
{
    const std::string matrices = "[ 1 0 0 0 0 1 0 0 0 0 1 0 5 0 0 1, 1 0 0 0 0 1 0 0 0 0 1 0 7 0 0 1 ]";
    EXPECT_EQ(placesIn("MultipleCopy { matrix " + matrices + " Cube { } } Cube { }"), (Places{5, 7, 0}));
    const std::string parameters = "instanceParameters [ InstanceTransform { matrix " + matrices +
                                   " }, NULL, InstanceColor { diffuseColor 1 0 0 } ]";
    EXPECT_EQ(placesIn("MultipleInstance { " + parameters + " Cube { } }"), (Places{5, 7}));
    EXPECT_EQ(placesIn("MultipleInstance { numInstances 3 " + parameters + " Cube { } }"), (Places{5, 7, 7}));
    EXPECT_EQ(placesIn("MultipleInstance { Cube { } }"), Places{});
}

TEST_F(Groups, TransformSeparatorKeepsOnlyTransforms)
{
    EXPECT_EQ(placesIn("TransformSeparator { Translation { translation 1 0 0 } Cube { } Coordinate3 { point 0 0 0 } }"
                       " PointSet { }"),
              (Places{1, 0}));
    build("TransformSeparator { Coordinate3 { point [ 0 0 0, 1 0 0 ] } } PointSet { }");
    EXPECT_EQ(geometry().getNumPoints(), 2u);
}

TEST_F(Groups, PathSwitchOpensForItsWayOnly)
{
    auto* root = new SoSeparator;
    auto* first = new SoSeparator;
    auto* second = new SoSeparator;
    auto* gate = new SoPathSwitch;
    root->ref();
    gate->addChild(new SoCube);
    first->addChild(gate);
    second->addChild(gate);
    root->addChild(first);
    root->addChild(second);
    GeometryAction count;
    count.apply(root);
    EXPECT_EQ(count.numShapes, 0);
    auto* path = new SoPath(root);
    path->append(1);
    gate->path = path;
    count.apply(root);
    EXPECT_EQ(count.numShapes, 1);
    // The path holds the graph that holds the path.
    gate->path = nullptr;
    root->unref();
}

TEST_F(Groups, CallbackIsToldOfTheAction)
{
    auto* node = new SoCallback;
    node->ref();
    SoAction* seen = nullptr;
    node->setCallback([](void* data, SoAction* action) { *static_cast<SoAction**>(data) = action; }, &seen);
    GeometryAction any;
    any.apply(node);
    EXPECT_EQ(seen, &any);
    node->setCallback(nullptr);
    seen = nullptr;
    any.apply(node);
    EXPECT_EQ(seen, nullptr);
    node->unref();
}

TEST_F(Groups, ResetTransformLeavesWhatIsAbove)
{
    EXPECT_EQ(placesIn("Translation { translation 1 0 0 } Separator { ResetTransform { } Cube { } } Cube { }"),
              (Places{0, 1}));
}

TEST_F(Groups, CameraShowsAllOfABox)
{
    auto* root = new SoSeparator;
    root->ref();
    auto* camera = new SoPerspectiveCamera;
    auto* cube = new SoCube;
    root->addChild(camera);
    root->addChild(cube);
    camera->orientation = SbRotation(SbVec3f(0, 1, 0), 0.7f);
    for (const SbViewportRegion& region : {SbViewportRegion(400, 100), SbViewportRegion(100, 400)}) {
        camera->viewAll(root, region);
        const SbViewVolume volume = camera->getViewVolume(region);
        for (int corner = 0; corner < 8; ++corner) {
            const SbVec3f point(corner & 1 ? 1 : -1, corner & 2 ? 1 : -1, corner & 4 ? 1 : -1);
            EXPECT_TRUE(volume.intersect(point)) << corner;
        }
    }
    camera->position = SbVec3f(0, 5, 0);
    camera->pointAt(SbVec3f(0, 0, 0));
    SbVec3f direction;
    camera->orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
    EXPECT_TRUE(direction.equals(SbVec3f(0, -1, 0), 1e-5f));
    root->unref();
}
