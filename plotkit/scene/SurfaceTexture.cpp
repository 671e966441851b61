#include "SurfaceTexture.h"

#include <vexel/nodes/SoTexture2.h>
#include <vexel/state/SoState.h>

#include <algorithm>
#include <cmath>

namespace {

float mix(float a, float b, float part)
{
    return a + (b - a) * part;
}

PageColor mix(const PageColor& a, const PageColor& b, float part)
{
    return {mix(a.red, b.red, part), mix(a.green, b.green, part), mix(a.blue, b.blue, part),
            mix(a.alpha, b.alpha, part)};
}

int wrapped(int i, int size, bool repeats)
{
    return repeats ? ((i % size) + size) % size : std::clamp(i, 0, size - 1);
}

} // namespace

SurfaceTexture::SurfaceTexture(const SoState& state)
{
    const SoTextureState& unit = state->textures[0];
    if (!unit.texture || unit.function || !unit.texture->isOfType(SoTexture2::getClassTypeId()))
        return;
    const auto* const texture = static_cast<const SoTexture2*>(unit.texture);
    if (texture->image.isEmpty())
        return;
    m_texture = texture;
    m_matrix = unit.matrix;
}

PageColor SurfaceTexture::texel(int x, int y) const
{
    SbVec2i32 size;
    int components = 0;
    const std::uint8_t* const bytes = m_texture->image.getValue(size, components);
    x = wrapped(x, size[0], m_texture->wrapS.getValue() == SoTexture2::REPEAT);
    y = wrapped(y, size[1], m_texture->wrapT.getValue() == SoTexture2::REPEAT);
    const std::uint8_t* const at = bytes + (std::size_t(y) * std::size_t(size[0]) + std::size_t(x)) * components;
    const auto part = [&](int i) { return float(at[i]) / 255; };
    if (components <= 2)
        return {part(0), part(0), part(0), components == 2 ? part(1) : 1};
    return {part(0), part(1), part(2), components == 4 ? part(3) : 1};
}

/** Between the four nearest texels. */
PageColor SurfaceTexture::sample(const SbVec3f& coordinate) const
{
    SbVec3f at;
    m_matrix.multVecMatrix(coordinate, at);
    const SbVec2i32 size = m_texture->image.getSize();
    const float x = at[0] * float(size[0]) - 0.5f;
    const float y = at[1] * float(size[1]) - 0.5f;
    if (!std::isfinite(x) || !std::isfinite(y) || std::abs(x) > 1e9f || std::abs(y) > 1e9f)
        return {1, 1, 1, 1};
    const int column = int(std::floor(x));
    const int row = int(std::floor(y));
    const PageColor below = mix(texel(column, row), texel(column + 1, row), x - float(column));
    const PageColor above = mix(texel(column, row + 1), texel(column + 1, row + 1), x - float(column));
    return mix(below, above, y - float(row));
}

PageColor SurfaceTexture::applyTo(const PageColor& lit, const SbVec3f& coordinate) const
{
    const PageColor color = sample(coordinate);
    switch (m_texture->model.getValue()) {
    case SoTexture2::DECAL: {
        PageColor result = mix(lit, color, color.alpha);
        result.alpha = lit.alpha;
        return result;
    }
    case SoTexture2::BLEND: {
        const SbColor& other = m_texture->blendColor.getValue();
        return {mix(lit.red, other[0], color.red), mix(lit.green, other[1], color.green),
                mix(lit.blue, other[2], color.blue), lit.alpha * color.alpha};
    }
    case SoTexture2::REPLACE:
        return {color.red, color.green, color.blue, lit.alpha * color.alpha};
    default:
        return {lit.red * color.red, lit.green * color.green, lit.blue * color.blue, lit.alpha * color.alpha};
    }
}
