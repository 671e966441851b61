#include "SurfaceTexture.h"

#include <vexel/nodes/SoTexture2.h>
#include <vexel/nodes/SoTextureCoordinateEnvironment.h>
#include <vexel/nodes/SoTextureCoordinatePlane.h>
#include <vexel/state/SoState.h>

#include <algorithm>
#include <cmath>

namespace {

/** From this quality on drawing smoothes between texels. */
constexpr float Smooth_quality = 0.25f;

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
    if (!unit.texture || state->textureQuality <= 0 || !unit.texture->isOfType(SoTexture2::getClassTypeId()))
        return;
    const auto* const texture = static_cast<const SoTexture2*>(unit.texture);
    if (texture->image.isEmpty())
        return;
    m_texture = texture;
    m_function = unit.function;
    m_matrix = unit.matrix;
    m_isSmooth = state->textureQuality >= Smooth_quality;
    m_worldToView = state->viewVolume.getCameraSpaceMatrix();
    m_toView = state->model * m_worldToView;
}

SbVec3f SurfaceTexture::coordinate(const SbVec3f& given, const SbVec3f& place, const SbVec3f& normal) const
{
    if (!m_function)
        return given;
    if (m_function->isOfType(SoTextureCoordinateEnvironment::getClassTypeId()))
        return mirrored(place, normal);
    if (!m_function->isOfType(SoTextureCoordinatePlane::getClassTypeId()))
        return given;
    const auto& plane = static_cast<const SoTextureCoordinatePlane&>(*m_function);
    const auto along = [&](const SbVec3f& direction) {
        const float square = direction.dot(direction);
        return square > 0 ? place.dot(direction) / square : 0;
    };
    return {along(plane.directionS.getValue()), along(plane.directionT.getValue()), 0};
}

/** Where in a picture of all that surrounds the shape the viewer sees the surface look. */
SbVec3f SurfaceTexture::mirrored(const SbVec3f& place, const SbVec3f& normal) const
{
    SbVec3f sight;
    m_toView.multVecMatrix(place, sight);
    sight.normalize();
    SbVec3f n;
    m_worldToView.multDirMatrix(normal, n);
    n.normalize();
    const SbVec3f r = sight - n * (2 * n.dot(sight));
    const float length = 2 * (r + SbVec3f(0, 0, 1)).length();
    return length > 0 ? SbVec3f(r[0] / length + 0.5f, r[1] / length + 0.5f, 0) : SbVec3f(0.5f, 0.5f, 0);
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

PageColor SurfaceTexture::sample(const SbVec3f& coordinate) const
{
    SbVec3f at;
    m_matrix.multVecMatrix(coordinate, at);
    const SbVec2i32 size = m_texture->image.getSize();
    const float middle = m_isSmooth ? 0.5f : 0; // of a texel
    const float x = at[0] * float(size[0]) - middle;
    const float y = at[1] * float(size[1]) - middle;
    if (!std::isfinite(x) || !std::isfinite(y) || std::abs(x) > 1e9f || std::abs(y) > 1e9f)
        return {1, 1, 1, 1};
    const int column = int(std::floor(x));
    const int row = int(std::floor(y));
    if (!m_isSmooth)
        return texel(column, row);
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
