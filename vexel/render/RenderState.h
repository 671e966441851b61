#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <vexel/base/VexelApi.h>
#include <vexel/render/RenderTexture.h>

namespace vexel {

class RenderSurroundings;

/** How surfaces, lines and points are put on the screen. Sizes are in pixels. */
struct RenderStyle {
    enum class Draw : std::uint8_t { Filled, Lines, Points, Invisible };
    enum class Cull : std::uint8_t { None, Back, Front };
    enum class Transparency : std::uint8_t { None, OpaqueFirst, SortedObject, SortedPixel };
    enum class DepthFunction : std::uint8_t { Never, Always, Less, LessEqual, Equal, GreaterEqual, Greater, NotEqual };

    Draw draw = Draw::Filled;
    Cull cull = Cull::None;
    Transparency transparency = Transparency::SortedObject;
    bool lit = true;      ///< false: the diffuse colour as it is
    bool twoSided = true; ///< light surfaces that are seen from behind as well
    bool flat = false;    ///< one normal per triangle
    bool depthTest = true;
    bool depthWrite = true;
    DepthFunction depthFunction = DepthFunction::LessEqual;
    bool roundPoints = false;
    std::uint16_t linePattern = 0xffff; ///< lowest bit first
    std::uint16_t linePatternScale = 1; ///< pixels per bit
    float lineWidth = 1;
    float pointSize = 1;
    float depthRange[2] = {0, 1};
    float offsetFactor = 0; ///< moves filled triangles away from the eye: times their slope
    float offsetUnits = 0;  ///< ... plus a constant, in steps of the depth buffer
};

/** Everything but geometry, matrix and material that decides how a packet is drawn. Equal states are held once. */
struct RenderState {
    RenderStyle style;
    std::vector<RenderTexture> textures; ///< applied one after the other; those after the fourth are ignored
    std::shared_ptr<const RenderSurroundings> surroundings; ///< none: no lights, no ambient light
};

VEXEL_API bool operator==(const RenderState& a, const RenderState& b);

/** Hash that fits the comparison. */
struct VEXEL_API RenderStateHash {
    std::size_t operator()(const RenderState& state) const;
};

} // namespace vexel
