#include <vexel/nodes/SoBufferedShape.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbColorRGBA.h>
#include <vexel/fields/SoBufferObject.h>
#include <vexel/nodes/detail/BufferView.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

namespace {

std::vector<SbVec3f> vectorsOf(const BufferView& buffer)
{
    std::vector<SbVec3f> vectors(buffer.getNum());
    for (std::size_t i = 0; i < vectors.size(); ++i)
        vectors[i] = buffer.vectorAt(i);
    return vectors;
}

// Light needs normals: the mean of the faces at each vertex.
std::vector<SbVec3f> normalsOf(const SoShapeGeometry& geometry)
{
    std::vector<SbVec3f> normals(geometry.points.size());
    for (std::size_t i = 0; i + 2 < geometry.triangles.size(); i += 3) {
        const std::uint32_t* corner = geometry.triangles.data() + i;
        const SbVec3f& first = geometry.points[corner[0]];
        const SbVec3f area = (geometry.points[corner[1]] - first).cross(geometry.points[corner[2]] - first);
        for (int k = 0; k < 3; ++k)
            normals[corner[k]] += area;
    }
    for (SbVec3f& normal : normals) {
        if (!(normal.normalize() > 0))
            normal = SbVec3f(0, 0, 1);
    }
    return normals;
}

} // namespace

std::vector<std::uint32_t> SoBufferedShape::usedIndices() const
{
    const BufferView vertices(vertexBuffer.getValue());
    const BufferView indices(indexBuffer.getValue());
    const bool isIndexed = indexBuffer.getValue() != nullptr;
    const std::size_t all = isIndexed ? indices.getNum() : vertices.getNum();
    const std::size_t first = std::min<std::size_t>(indexOffset.getValue(), all);
    const std::size_t wanted = numIndices.getValue() < 0 ? all : static_cast<std::size_t>(numIndices.getValue());
    const std::size_t count = std::min(wanted, all - first);
    std::vector<std::uint32_t> used;
    used.reserve(count);
    for (std::size_t i = first; i < first + count; ++i) {
        const double number = isIndexed ? indices.numberAt(i, 0) : static_cast<double>(i);
        if (number >= 0 && number < static_cast<double>(vertices.getNum()))
            used.push_back(static_cast<std::uint32_t>(number));
    }
    return used;
}

void SoBufferedShape::doAction(SoAction& action)
{
    const BufferView colors(colorBuffer.getValue());
    if (colors.getNum() == 0) {
        SoShape::doAction(action);
        return;
    }
    m_colors.resize(colors.getNum());
    for (std::size_t i = 0; i < m_colors.size(); ++i)
        m_colors[i] = colors.colorAt(i).getPackedValue();
    action.state().push();
    action.state()->packedColor = {m_colors.data(), static_cast<int>(m_colors.size()), this};
    SoShape::doAction(action);
    action.state().pop();
}

void SoBufferedShape::buildGeometry(const SoState&, SoShapeGeometry& geometry) const
{
    const std::vector<std::uint32_t> used = usedIndices();
    geometry.points = vectorsOf(BufferView(vertexBuffer.getValue()));
    const std::size_t count = used.size();
    const auto triangle = [&](std::size_t a, std::size_t b, std::size_t c) {
        geometry.triangles.insert(geometry.triangles.end(), {used[a], used[b], used[c]});
    };
    const auto line = [&](std::size_t a, std::size_t b) {
        geometry.lines.insert(geometry.lines.end(), {used[a], used[b]});
    };
    switch (shapeType.getValue()) {
    case POINTS:
        geometry.pointVertices = used;
        break;
    case LINES:
        for (std::size_t i = 0; i + 1 < count; i += 2)
            line(i, i + 1);
        break;
    case LINE_STRIP:
    case LINE_LOOP:
        for (std::size_t i = 0; i + 1 < count; ++i)
            line(i, i + 1);
        if (shapeType.getValue() == LINE_LOOP && count > 2)
            line(count - 1, 0);
        break;
    case TRIANGLE_STRIP:
        for (std::size_t i = 2; i < count; ++i)
            triangle(i % 2 ? i - 1 : i - 2, i % 2 ? i - 2 : i - 1, i);
        break;
    case TRIANGLE_FAN:
        for (std::size_t i = 2; i < count; ++i)
            triangle(0, i - 1, i);
        break;
    case QUADS:
        for (std::size_t i = 0; i + 3 < count; i += 4) {
            triangle(i, i + 1, i + 2);
            triangle(i, i + 2, i + 3);
        }
        break;
    default:
        for (std::size_t i = 0; i + 2 < count; i += 3)
            triangle(i, i + 1, i + 2);
        break;
    }
    geometry.normals = vectorsOf(BufferView(normalBuffer.getValue()));
    for (SbVec3f& normal : geometry.normals)
        normal.normalize();
    if (geometry.normals.size() != geometry.points.size())
        geometry.normals = geometry.triangles.empty() ? std::vector<SbVec3f>() : normalsOf(geometry);
    geometry.textureCoordinates = vectorsOf(BufferView(texCoordsBuffer.getValue()));
    if (geometry.textureCoordinates.size() != geometry.points.size())
        geometry.textureCoordinates.clear();
    if (BufferView(colorBuffer.getValue()).getNum() > 0) {
        for (std::uint32_t i = 0; i < geometry.points.size(); ++i)
            geometry.materialIndices.push_back(i);
    }
}

SbBox3f SoBufferedShape::computeBoundingBox(const SoState&) const
{
    const BufferView vertices(vertexBuffer.getValue());
    SbBox3f box;
    for (const std::uint32_t index : usedIndices())
        box.extendBy(vertices.vectorAt(index));
    return box;
}
