#include "SceneView.h"

#include <string>

#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoComplexity.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

using GLRender = SceneView;

TEST_F(GLRender, ShowsShapesWhereTransformsPutThem)
{
    read("BaseColor { rgb 1 0 0 } Separator { Translation { translation 0.5 0 0 } Cube { width 0.5 height 0.5 } }");
    const QImage picture = draw();
    EXPECT_COLOR(pixel(picture, 0.5f, 0), 255, 0, 0);
    EXPECT_COLOR(pixel(picture, -0.5f, 0), 0, 0, 0);
    EXPECT_COLOR(pixel(picture, 0.5f, 0.5f), 0, 0, 0);
}

TEST_F(GLRender, LightsCountAsFarAsTheyAreOn)
{
    read("LightModel { } Material { ambientColor 0 0 0 diffuseColor 1 1 1 }"
         "DirectionalLight { color 0 1 0 } DirectionalLight { color 1 0 0 on FALSE } Cube { }");
    EXPECT_COLOR(at(0, 0), 0, 255, 0);
}

TEST_F(GLRender, FacesTakeTheirOwnColors)
{
    read("Coordinate3 { point [-1 -1 0, 0 -1 0, 0 1 0, -1 1 0, 1 -1 0, 1 1 0] }"
         "BaseColor { rgb [1 0 0, 0 0 1] } MaterialBinding { value PER_FACE }"
         "IndexedFaceSet { coordIndex [0 1 2 3 -1 1 4 5 2 -1] }");
    const QImage picture = draw();
    EXPECT_COLOR(pixel(picture, -0.5f, 0), 255, 0, 0);
    EXPECT_COLOR(pixel(picture, 0.5f, 0), 0, 0, 255);
}

TEST_F(GLRender, TexturesCoverSurfaces)
{
    read("Texture2 { image 2 1 3 0xff0000 0x0000ff model REPLACE wrapS CLAMP } Cube { }");
    const QImage picture = draw();
    EXPECT_GT(pixel(picture, -0.8f, 0).red(), 200);
    EXPECT_GT(pixel(picture, 0.8f, 0).blue(), 200);
}

TEST_F(GLRender, TextureQualityChoosesHowTexelsAreSeen)
{
    read("BaseColor { rgb 0 1 0 } DEF quality Complexity { textureQuality 0.1 }"
         "Texture2 { image 2 1 3 0xff0000 0x0000ff model REPLACE wrapS CLAMP } Cube { }");
    EXPECT_COLOR(at(-0.1f, 0), 255, 0, 0);
    EXPECT_COLOR(at(0.1f, 0), 0, 0, 255);

    auto* quality = static_cast<SoComplexity*>(SoNode::getByName("quality"));
    ASSERT_NE(quality, nullptr);
    quality->textureQuality = 0.3f;
    const QColor between = at(-0.1f, 0);
    EXPECT_GT(between.red(), 100);
    EXPECT_GT(between.blue(), 50);

    quality->textureQuality = 0;
    EXPECT_COLOR(at(-0.1f, 0), 0, 255, 0);
}

TEST_F(GLRender, TransparentSurfacesLetOthersShineThrough)
{
    read("Separator { Translation { translation 0 0 2 } Material { diffuseColor 1 0 0 transparency 0.5 } Cube { } }"
         "BaseColor { rgb 0 0 1 } Cube { }");
    for (const auto type : {SoGLRenderAction::OPAQUE_FIRST, SoGLRenderAction::SORTED_OBJECT}) {
        action->setTransparencyType(type);
        const QColor color = at(0, 0);
        EXPECT_GT(color.red(), 100);
        EXPECT_GT(color.blue(), 50);
    }
}

TEST_F(GLRender, SwitchesAndAnnotationsChooseWhatIsSeen)
{
    read("Switch { whichChild 1 BaseColor { rgb 1 0 0 } BaseColor { rgb 0 1 0 } } Cube { width 1 height 1 }"
         "Annotation { BaseColor { rgb 0 0 1 } Translation { translation 0 0 -2 } Cube { width 0.4 height 0.4 } }");
    const QImage picture = draw();
    EXPECT_COLOR(pixel(picture, 0.4f, 0), 0, 255, 0);
    EXPECT_COLOR(pixel(picture, 0, 0), 0, 0, 255);
}

TEST_F(GLRender, OnlySolidsLoseTheirBackFaces)
{
    const std::string face = " } BaseColor { rgb 1 0 0 } Coordinate3 { point [-1 -1 0, 1 -1 0, 0 1 0] } FaceSet { }";
    read(("ShapeHints { vertexOrdering CLOCKWISE shapeType SOLID" + face).c_str());
    EXPECT_COLOR(at(0, -0.5f), 0, 0, 0);
    read(("ShapeHints { vertexOrdering COUNTERCLOCKWISE shapeType SOLID" + face).c_str());
    EXPECT_COLOR(at(0, -0.5f), 255, 0, 0);
    read(("ShapeHints { vertexOrdering CLOCKWISE" + face).c_str());
    EXPECT_COLOR(at(0, -0.5f), 255, 0, 0);
}

TEST_F(GLRender, ClipPlanesCutAway)
{
    read("BaseColor { rgb 1 0 0 } ClipPlane { plane 1 0 0 0 } Cube { }");
    const QImage picture = draw();
    EXPECT_COLOR(pixel(picture, 0.5f, 0), 255, 0, 0);
    EXPECT_COLOR(pixel(picture, -0.5f, 0), 0, 0, 0);
}

TEST_F(GLRender, BackgroundsComeFromTheGraphElseFromTheAction)
{
    action->setBackgroundColor(SbColorRGBA(0, 1, 1, 1));
    EXPECT_COLOR(at(0, 0), 0, 255, 255);
    read("GradientBackground { color0 1 0 0 color1 1 0 0 }");
    EXPECT_COLOR(at(0, 0), 255, 0, 0);
    root->removeChild(root->getNumChildren() - 1);
    EXPECT_COLOR(at(0, 0), 0, 255, 255);
}

TEST_F(GLRender, CallbacksAreCalledInEveryPicture)
{
    read("Cube { }");
    int calls = 0;
    auto* callback = new SoCallback;
    callback->setCallback([](void* data, SoAction* from) { *static_cast<int*>(data) += from ? 1 : 0; }, &calls);
    root->addChild(callback);
    draw();
    draw();
    EXPECT_EQ(2, calls);
}

} // namespace
