#include <vexel/actions/SoCallbackAction.h>

#include <vexel/actions/SoPrimitiveVertex.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/state/SoShapeGeometry.h>

SoCallbackAction::SoCallbackAction() = default;

SoCallbackAction::~SoCallbackAction() = default;

void SoCallbackAction::addPreCallback(SoType type, NodeCB function, void* data)
{
    m_pre.push_back({type, function, data});
}

void SoCallbackAction::addPostCallback(SoType type, NodeCB function, void* data)
{
    m_post.push_back({type, function, data});
}

void SoCallbackAction::addTriangleCallback(SoType type, TriangleCB function, void* data)
{
    m_triangles.push_back({type, function, data});
}

void SoCallbackAction::addLineSegmentCallback(SoType type, LineSegmentCB function, void* data)
{
    m_lines.push_back({type, function, data});
}

void SoCallbackAction::addPointCallback(SoType type, PointCB function, void* data)
{
    m_points.push_back({type, function, data});
}

SoCallbackAction::Response SoCallbackAction::call(const std::vector<Callback<NodeCB>>& callbacks, const SoNode& node)
{
    Response response = CONTINUE;
    for (const Callback<NodeCB>& callback : callbacks) {
        if (!node.isOfType(callback.type))
            continue;
        const Response answer = callback.function(callback.data, this, &node);
        if (answer == ABORT) {
            setTerminated(true);
            return ABORT;
        }
        if (answer == PRUNE)
            response = PRUNE;
    }
    return response;
}

void SoCallbackAction::visitNode(SoNode& node)
{
    const Response response = call(m_pre, node);
    if (response == CONTINUE)
        SoAction::visitNode(node);
    if (!hasTerminated())
        call(m_post, node);
}

namespace {

SoPrimitiveVertex vertexOf(const SoShapeGeometry& geometry, std::uint32_t index)
{
    SoPrimitiveVertex vertex;
    vertex.point = geometry.points[index];
    if (!geometry.normals.empty())
        vertex.normal = geometry.normals[index];
    if (!geometry.textureCoordinates.empty())
        vertex.textureCoordinate = geometry.textureCoordinates[index];
    if (!geometry.materialIndices.empty())
        vertex.materialIndex = geometry.materialIndices[index];
    if (!geometry.coordinateIndices.empty())
        vertex.coordinateIndex = geometry.coordinateIndices[index];
    return vertex;
}

// The functions for the type of a shape.
template <class Callback>
std::vector<Callback> fitting(const std::vector<Callback>& callbacks, const SoShape& shape)
{
    std::vector<Callback> found;
    for (const Callback& callback : callbacks) {
        if (shape.isOfType(callback.type))
            found.push_back(callback);
    }
    return found;
}

} // namespace

void SoCallbackAction::visitShape(SoShape& shape)
{
    const auto triangles = fitting(m_triangles, shape);
    const auto lines = fitting(m_lines, shape);
    const auto points = fitting(m_points, shape);
    if (triangles.empty() && lines.empty() && points.empty())
        return;
    SoShapeGeometry geometry;
    shape.buildGeometry(state(), geometry);
    for (std::size_t i = 0; !triangles.empty() && i + 2 < geometry.triangles.size(); i += 3) {
        const SoPrimitiveVertex a = vertexOf(geometry, geometry.triangles[i]);
        const SoPrimitiveVertex b = vertexOf(geometry, geometry.triangles[i + 1]);
        const SoPrimitiveVertex c = vertexOf(geometry, geometry.triangles[i + 2]);
        for (const auto& callback : triangles)
            callback.function(callback.data, this, a, b, c);
    }
    for (std::size_t i = 0; !lines.empty() && i + 1 < geometry.lines.size(); i += 2) {
        const SoPrimitiveVertex a = vertexOf(geometry, geometry.lines[i]);
        const SoPrimitiveVertex b = vertexOf(geometry, geometry.lines[i + 1]);
        for (const auto& callback : lines)
            callback.function(callback.data, this, a, b);
    }
    if (points.empty())
        return;
    for (const std::uint32_t index : geometry.pointVertices) {
        const SoPrimitiveVertex point = vertexOf(geometry, index);
        for (const auto& callback : points)
            callback.function(callback.data, this, point);
    }
}

void SoCallbackAction::getMaterial(SbColor& ambient, SbColor& diffuse, SbColor& specular, SbColor& emissive,
                                   float& shininess, float& transparency, int index) const
{
    const SoStateValues& values = *state();
    ambient = values.ambientColor.at(index);
    diffuse = values.diffuseColor.at(index);
    specular = values.specularColor.at(index);
    emissive = values.emissiveColor.at(index);
    shininess = values.shininess.at(index);
    transparency = values.transparency.at(index);
    if (!values.packedColor.isEmpty())
        diffuse.setPackedValue(values.packedColor.at(index), transparency);
}
