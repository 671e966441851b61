#include <gtest/gtest.h>

#include <functional>
#include <string>

#include <vexel/actions/SoAction.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>

namespace {

/** Looks at the state at the last shape of a graph. */
class StateAction : public SoAction {
    SO_ACTION(StateAction, SoAction)
public:
    StateAction() = default;
    void visitShape(SoShape&) override { look(state()); }

    std::function<void(const SoState&)> look;
};

class Properties : public testing::Test {
protected:
    static void SetUpTestSuite() { SoDB::init(); }

    void at(const std::string& text, std::function<void(const SoState&)> look,
            const std::function<void(SoSeparator&)>& change = nullptr)
    {
        SoInput in;
        in.setBuffer(text.data(), text.size());
        SoSeparator* root = SoDB::readAll(&in);
        ASSERT_NE(root, nullptr);
        root->ref();
        EXPECT_EQ(in.getNumErrors(), 0) << text;
        if (change)
            change(*root);
        bool wasLooked = false;
        StateAction action;
        action.look = [&](const SoState& state) {
            wasLooked = true;
            look(state);
        };
        action.apply(root);
        EXPECT_TRUE(wasLooked);
        in.closeFile();
        root->unref();
    }
};

} // namespace

TEST_F(Properties, IgnoredFieldsLeaveWhatWasInForce)
{
    at("Material { diffuseColor 1 0 0 transparency 0.5 } Material { diffuseColor 0 1 0 ~ transparency 0.25 } Cube { }",
       [](const SoState& state) {
           EXPECT_EQ(state->diffuseColor[0], SbColor(1, 0, 0));
           EXPECT_EQ(state->transparency[0], 0.25f);
       });
}

TEST_F(Properties, OverridePrevailsOverAllBehindIt)
{
    at(
        "Material { diffuseColor 1 0 0 specularColor 1 1 1 ~ } Separator { Material { diffuseColor 0 1 0 specularColor "
        "0 0 1 }"
        " BaseColor { rgb 0 0 1 } Cube { } }",
        [](const SoState& state) {
            EXPECT_EQ(state->diffuseColor[0], SbColor(1, 0, 0));
            EXPECT_EQ(state->specularColor[0], SbColor(0, 0, 1));
        },
        [](SoSeparator& root) { root.getChild(0)->setOverride(true); });
}

TEST_F(Properties, LaterColoursReplacePackedOnes)
{
    at("PackedColor { orderedRGBA 0xff0000ff } Cube { }",
       [](const SoState& state) { EXPECT_EQ(state->packedColor[0], 0xff0000ffu); });
    at("PackedColor { orderedRGBA 0xff0000ff } BaseColor { rgb 0 0 1 } Cube { }", [](const SoState& state) {
        EXPECT_TRUE(state->packedColor.isEmpty());
        EXPECT_EQ(state->diffuseColor[0], SbColor(0, 0, 1));
    });
}

TEST_F(Properties, VertexPropertyIsForItsOwnShapeOnly)
{
    int shapes = 0;
    at("FaceSet { vertexProperty VertexProperty { vertex [ 0 0 0, 1 0 0, 0 1 0 ] orderedRGBA 0xffffffff } } FaceSet { "
       "}",
       [&](const SoState& state) {
           EXPECT_EQ(state->coordinates3.num, shapes == 0 ? 3 : 0);
           EXPECT_EQ(state->packedColor.isEmpty(), shapes != 0);
           ++shapes;
       });
    EXPECT_EQ(shapes, 2);
}

TEST_F(Properties, TransformsWorkFromTheShapeOutwards)
{
    at("Translation { translation 1 0 0 } RotationXYZ { axis Z angle 1.5707963 } Scale { scaleFactor 2 2 2 } Cube { }",
       [](const SoState& state) {
           SbVec3f point;
           state->model.multVecMatrix(SbVec3f(1, 0, 0), point);
           EXPECT_TRUE(point.equals(SbVec3f(1, 2, 0), 1e-5f));
       });
    at("Units { units CENTIMETERS } Units { units INCHES } Cube { }",
       [](const SoState& state) { EXPECT_NEAR(state->model[0][0], 0.0254f, 1e-6f); });
    at("Scale { scaleFactor 1 2 6 } AntiSquish { } Cube { }", [](const SoState& state) {
        EXPECT_NEAR(state->model[0][0], 3, 1e-4f);
        EXPECT_NEAR(state->model[2][2], 3, 1e-4f);
    });
    at("Cube { width 4 height 6 depth 8 } Separator { SurroundScale { numNodesUpToContainer 2 } Cube { } }",
       [shapes = 0](const SoState& state) mutable {
           if (++shapes == 2) {
               EXPECT_EQ(SbVec3f(state->model[0][0], state->model[1][1], state->model[2][2]), SbVec3f(2, 3, 4));
           }
       });
}

TEST_F(Properties, LightsAndClipPlanesEndWithTheirSeparator)
{
    at("DirectionalLight { } PointLight { on FALSE } Separator { SpotLight { } ClipPlane { } } Cube { }",
       [](const SoState& state) {
           EXPECT_EQ(state->numLights, 1);
           EXPECT_EQ(state->numClipPlanes, 0);
       });
    at("Translation { translation 3 0 0 } ClipPlane { plane 1 0 0 2 } Cube { }", [](const SoState& state) {
        ASSERT_EQ(state->numClipPlanes, 1);
        EXPECT_FLOAT_EQ(state.getClipPlane(0).plane.getDistanceFromOrigin(), 5);
    });
}

TEST_F(Properties, TextureNodesWorkOnTheUnitInForce)
{
    at("Texture2 { image 1 1 3 0xff0000 } TextureUnit { unit 2 } Texture2 { image 1 1 1 7 }"
       " Texture2Transform { scaleFactor 2 2 } TextureCoordinateEnvironment { } Cube { }",
       [](const SoState& state) {
           EXPECT_NE(state->textures[0].texture, nullptr);
           EXPECT_EQ(state->textures[1].texture, nullptr);
           EXPECT_NE(state->textures[2].texture, nullptr);
           EXPECT_NE(state->textures[2].function, nullptr);
           EXPECT_EQ(state->textures[2].matrix[0][0], 2);
           EXPECT_EQ(state->textures[0].matrix, SbMatrix::identity());
       });
    at("TextureUnit { unit 99 } Texture2 { image 1 1 1 7 } Cube { }",
       [](const SoState& state) { EXPECT_NE(state->textures[3].texture, nullptr); });
}
