#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include <vexel/render/RenderGeometry.h>

namespace vexel {

/** The geometry of a shape as it is drawn and picked, shared by all places where it is the same. */
struct CompiledShape {
    /** By RenderPrimitive; null for kinds of primitives that the shape has none of. All have the same vertices. */
    static constexpr std::size_t NumKinds = 3;
    std::array<std::shared_ptr<const RenderGeometry>, NumKinds> geometries;

    /** Pixels across the largest sign that a point is drawn as. */
    float signSize = 0;

    // What a pick tells; as in SoShapeGeometry.
    std::vector<std::int32_t> triangleFaces;
    std::vector<std::int32_t> lineParts;
    std::vector<std::int32_t> triangleParts;
    std::vector<std::int32_t> coordinateIndices;
    std::vector<std::uint32_t> materialIndices;
};

} // namespace vexel
