#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec4f.h>
#include <vexel/base/VexelApi.h>

namespace vexel {

/** Texels of a texture; shared and never changed. Rows run from the bottom, slices from the front. */
class VEXEL_API RenderImage {
public:
    /** `components`: 1 grey, 2 grey and alpha, 3 red green blue, 4 with alpha; `texels` must fit the sizes. */
    RenderImage(int width, int height, int depth, int components, std::vector<std::uint8_t> texels);
    ~RenderImage();
    RenderImage(const RenderImage&) = delete;
    RenderImage& operator=(const RenderImage&) = delete;

    int width() const { return m_width; }
    int height() const { return m_height; }
    int depth() const { return m_depth; } ///< 1 for a flat image
    int components() const { return m_components; }
    const std::vector<std::uint8_t>& texels() const { return m_texels; }
    bool hasAlpha() const { return m_components == 2 || m_components == 4; }
    std::uint64_t id() const { return m_id; }

private:
    int m_width;
    int m_height;
    int m_depth;
    int m_components;
    std::vector<std::uint8_t> m_texels;
    std::uint64_t m_id;
};

/** An image and how it covers a surface. */
struct RenderTexture {
    enum class Wrap : std::uint8_t { Repeat, Clamp };
    enum class Filter : std::uint8_t { Nearest, Linear, Mipmap };
    enum class Model : std::uint8_t {
        Modulate,
        Decal,
        Blend,
        Replace,
        Bump ///< red, green, blue are the normal, from -1 to 1, relative to s, t and the surface
    };
    enum class Coordinates : std::uint8_t { FromVertices, Plane, Environment };

    std::shared_ptr<const RenderImage> image; ///< none: not textured
    Wrap wrapS = Wrap::Repeat;
    Wrap wrapT = Wrap::Repeat;
    Wrap wrapR = Wrap::Repeat;
    Filter filter = Filter::Mipmap;
    Model model = Model::Modulate;
    SbVec3f blendColor{0, 0, 0};
    Coordinates coordinates = Coordinates::FromVertices;
    SbVec4f planeS{1, 0, 0, 0}; ///< for Coordinates::Plane, in the shape's space
    SbVec4f planeT{0, 1, 0, 0};
    SbMatrix matrix; ///< applied to the coordinates
};

} // namespace vexel
