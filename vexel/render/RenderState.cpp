#include <vexel/render/RenderState.h>

#include <functional>
#include <tuple>

namespace vexel {

namespace {

auto tied(const RenderStyle& s)
{
    return std::tie(s.draw, s.cull, s.transparency, s.lit, s.twoSided, s.flat, s.depthTest, s.depthWrite,
                    s.depthFunction, s.roundPoints, s.linePattern, s.linePatternScale, s.lineWidth, s.pointSize,
                    s.depthRange[0], s.depthRange[1], s.offsetFactor, s.offsetUnits);
}

auto tied(const RenderTexture& t)
{
    return std::tie(t.wrapS, t.wrapT, t.wrapR, t.filter, t.model, t.blendColor, t.coordinates, t.planeS, t.planeT,
                    t.matrix);
}

template <typename... T>
std::size_t hashOf(const T&... values)
{
    std::size_t result = 0;
    ((result = result * 0x9e3779b97f4a7c15ull + std::hash<T>()(values) + (result >> 29)), ...);
    return result;
}

} // namespace

bool operator==(const RenderState& a, const RenderState& b)
{
    if (a.surroundings != b.surroundings || a.texture.image != b.texture.image)
        return false;
    // How a texture would be applied plays no part when there is none.
    return tied(a.style) == tied(b.style) && (!a.texture.image || tied(a.texture) == tied(b.texture));
}

std::size_t RenderStateHash::operator()(const RenderState& state) const
{
    const RenderStyle& s = state.style;
    const std::size_t flags = static_cast<std::size_t>(s.draw) | static_cast<std::size_t>(s.cull) << 2 |
                              static_cast<std::size_t>(s.transparency) << 4 | static_cast<std::size_t>(s.lit) << 6 |
                              static_cast<std::size_t>(s.twoSided) << 7 | static_cast<std::size_t>(s.flat) << 8 |
                              static_cast<std::size_t>(s.linePattern) << 16;
    return hashOf(flags, s.lineWidth, s.pointSize, s.offsetFactor, s.offsetUnits, state.surroundings.get(),
                  state.texture.image.get());
}

} // namespace vexel
