#include <vexel/actions/detail/ShapeCache.h>

#include <algorithm>
#include <cstring>

#include <vexel/actions/detail/StateColors.h>
#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/detail/MarkerBitmaps.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace vexel {

namespace {

std::uint64_t bitsOf(float a, float b)
{
    const float both[2] = {a, b};
    std::uint64_t bits = 0;
    std::memcpy(&bits, both, sizeof(bits));
    return bits;
}

std::uint64_t bitsOf(int a, int b)
{
    return std::uint64_t(std::uint32_t(a)) << 32 | std::uint32_t(b);
}

bool isTextured(const SoStateValues& values)
{
    for (const SoTextureState& unit : values.textures) {
        if (unit.texture)
            return true;
    }
    return values.bumpMap != nullptr;
}

std::vector<std::uint32_t> vertexColors(const SoState& state, const std::vector<std::uint32_t>& materialIndices)
{
    std::vector<std::uint32_t> colors;
    colors.reserve(materialIndices.size());
    for (const std::uint32_t index : materialIndices)
        colors.push_back(stateColor(*state, static_cast<int>(index)));
    return colors;
}

std::vector<RenderSign> signsOf(const std::vector<std::int32_t>& markers)
{
    std::vector<RenderSign> signs;
    signs.reserve(markers.size());
    for (const std::int32_t marker : markers) {
        const MarkerBitmap& bitmap = markerBitmap(marker);
        RenderSign sign;
        sign.size = static_cast<std::uint32_t>(bitmap.size);
        for (std::size_t row = 0; row < bitmap.rows.size(); ++row)
            sign.setRow(row, bitmap.rows[row]);
        signs.push_back(sign);
    }
    return signs;
}

std::shared_ptr<const CompiledShape> compile(const SoShape& shape, const SoState& state)
{
    SoShapeGeometry from;
    shape.buildGeometry(state, from);
    RenderGeometryArrays shared;
    shared.positions = std::move(from.points);
    shared.normals = std::move(from.normals);
    shared.textureCoordinates = std::move(from.textureCoordinates);
    shared.colors = vertexColors(state, from.materialIndices);
    shared.signs = signsOf(from.markers);

    auto result = std::make_shared<CompiledShape>();
    for (const RenderSign& sign : shared.signs)
        result->signSize = std::max(result->signSize, static_cast<float>(sign.size));
    std::vector<std::uint32_t>* indices[] = {&from.triangles, &from.lines, &from.pointVertices};
    for (std::size_t kind = 0; kind < CompiledShape::NumKinds; ++kind) {
        if (indices[kind]->empty())
            continue;
        // Few shapes have primitives of several kinds, so most arrays are handed on without a copy.
        bool isLast = true;
        for (std::size_t later = kind + 1; later < CompiledShape::NumKinds; ++later)
            isLast = isLast && indices[later]->empty();
        // NOLINTNEXTLINE(bugprone-use-after-move): the loop ends with the last one
        RenderGeometryArrays arrays = isLast ? std::move(shared) : shared;
        arrays.primitive = static_cast<RenderPrimitive>(kind);
        arrays.indices = std::move(*indices[kind]);
        if (arrays.primitive == RenderPrimitive::Triangles)
            arrays.outline = std::move(from.outline);
        result->geometries[kind] = std::make_shared<const RenderGeometry>(std::move(arrays));
        if (isLast)
            break;
    }
    result->triangleFaces = std::move(from.triangleFaces);
    result->lineParts = std::move(from.lineParts);
    result->triangleParts = std::move(from.triangleParts);
    result->coordinateIndices = std::move(from.coordinateIndices);
    result->materialIndices = std::move(from.materialIndices);
    return result;
}

} // namespace

std::size_t ShapeCache::Hash::operator()(const Key& key) const
{
    std::uint64_t hash = key.size();
    for (const std::uint64_t word : key) {
        hash = (hash ^ word) * 0x9e3779b97f4a7c15u;
        hash ^= hash >> 29;
    }
    return hash;
}

template <class List>
void ShapeCache::addToKey(const List& list)
{
    const SbUniqueId source = list.source ? list.source->getNodeId() : 0;
    m_key.insert(m_key.end(), {source, m_stamps.of(source), reinterpret_cast<std::uintptr_t>(list.values),
                               static_cast<std::uint64_t>(list.num)});
}

void ShapeCache::makeKey(const SoShape& shape, const SoState& state)
{
    const unsigned depends = shape.getDependencies();
    const SoStateValues& values = *state;
    m_key.assign({shape.getNodeId(), m_stamps.of(shape.getNodeId())});
    if (depends & SoShape::ON_COORDINATES) {
        addToKey(values.coordinates3);
        addToKey(values.coordinates4);
        addToKey(values.normals);
        m_key.push_back(bitsOf(values.normalBinding, 0));
    }
    if (depends & SoShape::ON_TEXTURE_COORDINATES) {
        addToKey(values.textureCoordinates2);
        addToKey(values.textureCoordinates3);
        m_key.push_back(bitsOf(values.textureCoordinateBinding, isTextured(values)));
    }
    if (depends & SoShape::ON_MATERIAL_BINDING) {
        m_key.push_back(bitsOf(values.materialBinding, 0));
        // Colours are part of the vertices as soon as there are several.
        if (values.materialBinding != SoMaterialBinding::OVERALL) {
            addToKey(values.diffuseColor);
            addToKey(values.transparency);
            addToKey(values.packedColor);
        }
    }
    if (depends & SoShape::ON_COMPLEXITY)
        m_key.insert(m_key.end(), {bitsOf(values.complexityType, 0), bitsOf(values.complexity, 0.0f)});
    if (depends & SoShape::ON_SHAPE_HINTS) {
        m_key.insert(m_key.end(), {bitsOf(values.vertexOrdering, values.shapeType), bitsOf(values.faceType, 0),
                                   bitsOf(values.creaseAngle, 0.0f)});
    }
    if (depends & SoShape::ON_FONT) {
        m_key.insert(m_key.end(), {std::hash<SbName>()(values.fontName),
                                   bitsOf(values.fontSize, state.getViewportRegion().getPixelsPerPoint()),
                                   bitsOf(values.fontFamily, values.fontStyle)});
    }
}

std::shared_ptr<const CompiledShape> ShapeCache::get(const SoShape& shape, const SoState& state)
{
    // What has its size on the screen differs from place to place.
    if (shape.getDependencies() & SoShape::ON_VIEW)
        return compile(shape, state);
    makeKey(shape, state);
    std::weak_ptr<const CompiledShape>& kept = m_shapes[m_key];
    std::shared_ptr<const CompiledShape> result = kept.lock();
    if (!result) {
        result = compile(shape, state);
        kept = result;
    }
    return result;
}

void ShapeCache::sweep()
{
    if (m_shapes.size() < 2 * m_sizeAfterSweep + 64)
        return;
    for (auto shape = m_shapes.begin(); shape != m_shapes.end();)
        shape = shape->second.expired() ? m_shapes.erase(shape) : std::next(shape);
    m_sizeAfterSweep = m_shapes.size();
}

} // namespace vexel
