#include "U3DMesh.h"

namespace {

/** Context of the shading of a face. */
constexpr std::uint32_t Shading_context = 1;
/** Quality factors, and sizes of steps in what refines a base mesh; nothing does here. */
constexpr std::uint32_t Full_quality = 1000;
constexpr float Unused_step = 1.0f / 16384;

U3DBytes declarationOf(const U3DMesh& mesh)
{
    U3DBitStream data;
    data.putU32(0); // index in the chain
    data.putU32(0); // faces have normals
    data.putU32(std::uint32_t(mesh.faces.size()));
    data.putU32(std::uint32_t(mesh.positions.size()));
    data.putU32(std::uint32_t(mesh.normals.size()));
    data.putU32(std::uint32_t(mesh.colors.size()));
    data.putU32(0); // specular colours
    data.putU32(0); // texture coordinates
    data.putU32(1); // shadings
    data.putU32(mesh.colors.empty() ? 0 : 1);
    data.putU32(0); // texture layers
    data.putU32(0); // number of the shading
    // Resolution, from the least to the greatest.
    data.putU32(std::uint32_t(mesh.positions.size()));
    data.putU32(std::uint32_t(mesh.positions.size()));
    for (int i = 0; i < 3; ++i)
        data.putU32(Full_quality);
    for (int i = 0; i < 5; ++i)
        data.putF32(Unused_step);
    // Crease, update and tolerance of normals.
    data.putF32(0.9f);
    data.putF32(0.5f);
    data.putF32(0.985f);
    data.putU32(0); // bones
    return data.finish();
}

template <class Vec>
void putAll(U3DBitStream& data, const std::vector<Vec>& values, int size)
{
    for (const Vec& value : values) {
        for (int i = 0; i < size; ++i)
            data.putF32(value[i]);
    }
}

U3DBytes continuationOf(const U3DMesh& mesh, U3DProgress& progress)
{
    const auto numPositions = std::uint32_t(mesh.positions.size());
    const auto numNormals = std::uint32_t(mesh.normals.size());
    const auto numColors = std::uint32_t(mesh.colors.size());
    U3DBitStream data;
    data.putU32(0); // index in the chain
    data.putU32(std::uint32_t(mesh.faces.size()));
    data.putU32(numPositions);
    data.putU32(numNormals);
    data.putU32(numColors);
    data.putU32(0); // specular colours
    data.putU32(0); // texture coordinates
    putAll(data, mesh.positions, 3);
    putAll(data, mesh.normals, 3);
    putAll(data, mesh.colors, 4);
    for (std::size_t i = 0; i < mesh.faces.size() && progress.goesOn(i, mesh.faces.size(), 0.5, 1); ++i) {
        data.putDynamic(Shading_context, 0);
        for (const U3DMesh::Corner& corner : mesh.faces[i]) {
            data.putBelow(numPositions, corner.position);
            data.putBelow(numNormals, corner.normal);
            if (numColors > 0)
                data.putBelow(numColors, corner.color);
        }
    }
    return data.finish();
}

} // namespace

U3DModelResource encodeU3DMesh(const U3DMesh& mesh, U3DProgress& progress)
{
    return {declarationOf(mesh), continuationOf(mesh, progress)};
}
