#include <vexel/actions/detail/PickedPoints.h>

#include <algorithm>

#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/detail/SceneTree.h>
#include <vexel/base/SoPath.h>

namespace vexel {

namespace {

// Lists that are left empty number things alike.
int numberOf(const std::vector<std::int32_t>& numbers, std::uint32_t primitive, int otherwise)
{
    return primitive < numbers.size() ? numbers[primitive] : otherwise;
}

SoPointDetail vertexDetail(const CompiledShape& shape, std::uint32_t vertex)
{
    const int material = vertex < shape.materialIndices.size() ? static_cast<int>(shape.materialIndices[vertex]) : 0;
    return SoPointDetail(numberOf(shape.coordinateIndices, vertex, -1), material);
}

std::unique_ptr<SoDetail> detailOf(const CompiledShape& shape, const RenderGeometry& geometry, std::uint32_t primitive)
{
    const std::uint32_t* vertices = geometry.primitiveVertices(primitive);
    const int number = static_cast<int>(primitive);
    switch (geometry.primitive()) {
    case RenderPrimitive::Points:
        return std::make_unique<SoPointDetail>(vertexDetail(shape, vertices[0]));
    case RenderPrimitive::Lines:
        return std::make_unique<SoLineDetail>(numberOf(shape.lineParts, primitive, number), number,
                                              vertexDetail(shape, vertices[0]), vertexDetail(shape, vertices[1]));
    default:
        return std::make_unique<SoFaceDetail>(
            numberOf(shape.triangleFaces, primitive, number), numberOf(shape.triangleParts, primitive, 0),
            std::vector<SoPointDetail>{vertexDetail(shape, vertices[0]), vertexDetail(shape, vertices[1]),
                                       vertexDetail(shape, vertices[2])});
    }
}

std::size_t countOf(RenderPrimitive primitive)
{
    return primitive == RenderPrimitive::Triangles ? 3 : (primitive == RenderPrimitive::Lines ? 2 : 1);
}

SbVec3f mixed(const std::vector<SbVec3f>& values, const RenderGeometry& geometry, const PickHit& hit)
{
    const std::uint32_t* vertices = geometry.primitiveVertices(hit.primitive);
    SbVec3f result(0, 0, 0);
    for (std::size_t i = 0; i < countOf(geometry.primitive()); ++i)
        result += values[vertices[i]] * hit.weights[i];
    return result;
}

SbVec3f flatNormal(const RenderGeometry& geometry, const PickHit& hit)
{
    if (geometry.primitive() != RenderPrimitive::Triangles)
        return SbVec3f(0, 0, 1);
    const std::uint32_t* vertices = geometry.primitiveVertices(hit.primitive);
    const std::vector<SbVec3f>& points = geometry.arrays().positions;
    return (points[vertices[1]] - points[vertices[0]]).cross(points[vertices[2]] - points[vertices[0]]);
}

} // namespace

std::unique_ptr<SoPickedPoint> pickedPoint(SceneTree& tree, const PickHit& hit)
{
    const auto index = static_cast<std::uint32_t>(hit.tag);
    const SceneShape& place = tree.shape(index);
    const RenderGeometry& geometry = *tree.pickScene().item(hit.item).geometry;
    const RenderGeometryArrays& arrays = geometry.arrays();
    SoPickedPoint::Values values;
    values.objectToWorld = place.matrix;
    values.point = hit.point;
    values.objectPoint = mixed(arrays.positions, geometry, hit);
    values.objectNormal = arrays.normals.empty() ? flatNormal(geometry, hit) : mixed(arrays.normals, geometry, hit);
    values.objectNormal.normalize();
    if (!arrays.textureCoordinates.empty()) {
        const SbVec3f coords = mixed(arrays.textureCoordinates, geometry, hit);
        values.textureCoords = SbVec4f(coords[0], coords[1], coords[2], 1);
    }
    if (place.picking != SceneShape::Picking::Box) {
        values.detail = detailOf(*place.shape, geometry, hit.primitive);
        values.materialIndex =
            vertexDetail(*place.shape, geometry.primitiveVertices(hit.primitive)[0]).getMaterialIndex();
    }
    return std::make_unique<SoPickedPoint>(tree.pathOf(index), std::move(values));
}

} // namespace vexel
