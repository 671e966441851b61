#include "Stage.h"

namespace vexel {
namespace {

class TextureTest : public Stage {
protected:
    /** Lower row red, green; upper row blue, white. */
    static RenderTexture fourColors()
    {
        RenderTexture texture;
        texture.image = std::make_shared<const RenderImage>(
            2, 2, 1, 3, std::vector<std::uint8_t>{255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255});
        texture.filter = RenderTexture::Filter::Nearest;
        return texture;
    }

    QImage show(const RenderTexture& texture, const SbVec3f& color = SbVec3f(1, 1, 1))
    {
        RenderPacket packet = plain(square(0.8f), color);
        packet.state.textures = {texture};
        const DrawList::Packet handle = list.add(scene, packet);
        const QImage picture = draw();
        list.remove(handle);
        return picture;
    }
};

TEST_F(TextureTest, StandsUpright)
{
    const QImage picture = show(fourColors());
    EXPECT_COLOR(at(picture, -0.4f, -0.4f), 255, 0, 0);
    EXPECT_COLOR(at(picture, 0.4f, -0.4f), 0, 255, 0);
    EXPECT_COLOR(at(picture, -0.4f, 0.4f), 0, 0, 255);
    EXPECT_COLOR(at(picture, 0.4f, 0.4f), 255, 255, 255);
}

TEST_F(TextureTest, MatrixMovesTheImageAndItRepeatsOrStops)
{
    RenderTexture texture = fourColors();
    texture.matrix.setTranslate(SbVec3f(0.5f, 0, 0));
    EXPECT_COLOR(at(show(texture), 0.4f, -0.4f), 255, 0, 0);
    texture.wrapS = RenderTexture::Wrap::Clamp;
    EXPECT_COLOR(at(show(texture), 0.4f, -0.4f), 0, 255, 0);
}

TEST_F(TextureTest, ModelsMixWithTheSurface)
{
    struct Case {
        RenderTexture::Model model;
        int red, green, blue;
    };
    const Case cases[] = {{RenderTexture::Model::Modulate, 51, 77, 0},
                          {RenderTexture::Model::Replace, 102, 153, 204},
                          {RenderTexture::Model::Blend, 76, 51, 153},
                          {RenderTexture::Model::Decal, 102, 153, 204}};
    RenderTexture texture;
    texture.image = std::make_shared<const RenderImage>(1, 1, 1, 3, std::vector<std::uint8_t>{102, 153, 204});
    texture.blendColor = SbVec3f(0, 0, 0.75f);
    for (const Case& expected : cases) {
        texture.model = expected.model;
        EXPECT_COLOR(at(show(texture, SbVec3f(0.5f, 0.5f, 0)), 0, 0), expected.red, expected.green, expected.blue);
    }
}

TEST_F(TextureTest, GreyImagesAndAlpha)
{
    RenderTexture texture;
    texture.image = std::make_shared<const RenderImage>(1, 1, 1, 1, std::vector<std::uint8_t>{102});
    EXPECT_COLOR(at(show(texture), 0, 0), 102, 102, 102);
    list.background.color = SbVec4f(1, 0, 0, 1);
    texture.image = std::make_shared<const RenderImage>(1, 1, 1, 2, std::vector<std::uint8_t>{102, 128});
    EXPECT_COLOR(at(show(texture), 0, 0), 178, 51, 51);
}

TEST_F(TextureTest, PlanesGiveCoordinates)
{
    RenderTexture texture = fourColors();
    texture.coordinates = RenderTexture::Coordinates::Plane;
    texture.planeS = SbVec4f(0, 0.5f, 0, 0.5f);
    texture.planeT = SbVec4f(0.5f, 0, 0, 0.5f);
    const QImage picture = show(texture);
    EXPECT_COLOR(at(picture, 0.4f, -0.4f), 0, 0, 255);
    EXPECT_COLOR(at(picture, -0.4f, 0.4f), 0, 255, 0);
}

TEST_F(TextureTest, EnvironmentShowsTheMiddleOfTheImageWhereTheSurfaceFacesTheViewer)
{
    RenderTexture texture;
    texture.coordinates = RenderTexture::Coordinates::Environment;
    texture.filter = RenderTexture::Filter::Nearest;
    std::vector<std::uint8_t> texels(3 * 9, 255);
    texels[4 * 3 + 1] = 0;
    texture.image = std::make_shared<const RenderImage>(3, 3, 1, 3, texels);
    view.view = moved(0, 0, -0.9f);
    EXPECT_COLOR(at(show(texture), 0, 0), 255, 0, 255);
}

TEST_F(TextureTest, VolumesAreCutByTheSurface)
{
    RenderTexture texture;
    texture.image = std::make_shared<const RenderImage>(1, 1, 2, 3, std::vector<std::uint8_t>{255, 0, 0, 0, 255, 0});
    texture.filter = RenderTexture::Filter::Nearest;
    EXPECT_COLOR(at(show(texture), 0, 0), 255, 0, 0);
    texture.matrix.setTranslate(SbVec3f(0, 0, 0.75f));
    EXPECT_COLOR(at(show(texture), 0, 0), 0, 255, 0);
}

TEST_F(TextureTest, SeveralImagesAreAppliedInTurn)
{
    RenderTexture second = fourColors();
    second.matrix.setTranslate(SbVec3f(0.5f, 0, 0));
    second.model = RenderTexture::Model::Blend;
    second.blendColor = SbVec3f(0.2f, 0.2f, 0.2f);
    RenderPacket packet = plain(square(0.8f), SbVec3f(1, 1, 1));
    packet.state.textures = {fourColors(), second};
    list.add(scene, packet);
    // Red times white, then green replaced by the blend colour; blue, then all replaced.
    EXPECT_COLOR(at(draw(), -0.4f, -0.4f), 255, 51, 0);
    EXPECT_COLOR(at(draw(), -0.4f, 0.4f), 51, 51, 51);
}

TEST_F(TextureTest, BumpsBendTheNormal)
{
    RenderSurroundings::Values values;
    values.ambient = SbVec3f(0, 0, 0);
    RenderLight lamp;
    lamp.direction = SbVec3f(-1, 0, 0);
    values.lights.push_back(lamp);
    RenderPacket packet;
    packet.geometry = square(0.8f);
    packet.material.diffuse = SbVec3f(1, 1, 1);
    packet.state.surroundings = std::make_shared<const RenderSurroundings>(values);
    RenderTexture texture;
    texture.model = RenderTexture::Model::Bump;
    // Leans towards +s by 3 in 5.
    texture.image = std::make_shared<const RenderImage>(1, 1, 1, 3, std::vector<std::uint8_t>{204, 128, 230});
    const DrawList::Packet handle = list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 0);
    packet.state.textures = {texture};
    list.setState(handle, packet.state);
    EXPECT_COLOR(at(draw(), 0.1f, 0), 153, 153, 153);
}

} // namespace
} // namespace vexel
