#include <vexel/render/RenderState.h>

#include <algorithm>
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
    return std::tie(t.image, t.wrapS, t.wrapT, t.wrapR, t.filter, t.model, t.blendColor, t.coordinates, t.planeS,
                    t.planeT, t.matrix);
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
    return a.surroundings == b.surroundings && tied(a.style) == tied(b.style) &&
           std::equal(a.textures.begin(), a.textures.end(), b.textures.begin(), b.textures.end(),
                      [](const RenderTexture& x, const RenderTexture& y) { return tied(x) == tied(y); });
}

std::size_t RenderStateHash::operator()(const RenderState& state) const
{
    const RenderStyle& s = state.style;
    const std::size_t flags = static_cast<std::size_t>(s.draw) | static_cast<std::size_t>(s.cull) << 2 |
                              static_cast<std::size_t>(s.transparency) << 4 | static_cast<std::size_t>(s.lit) << 6 |
                              static_cast<std::size_t>(s.twoSided) << 7 | static_cast<std::size_t>(s.flat) << 8 |
                              static_cast<std::size_t>(s.linePattern) << 16;
    return hashOf(flags, s.lineWidth, s.pointSize, s.offsetFactor, s.offsetUnits, state.surroundings.get(),
                  state.textures.empty() ? nullptr : state.textures.front().image.get());
}

} // namespace vexel
