#pragma once

#include <cstdint>

#include <vexel/base/SbMatrix.h>
#include <vexel/render/RenderMaterial.h>

namespace vexel {

/** What the graphics card is given per packet, as it lies in the instance buffer: one cache line. */
struct InstanceRecord {
    float rows[12];        ///< upper three rows of the matrix for column vectors
    std::uint32_t diffuse; ///< red in the lowest byte ... alpha in the highest
    std::uint32_t ambient;
    std::uint32_t emissive;
    std::uint32_t specular; ///< shininess in the highest byte

    void setMatrix(const SbMatrix& matrix);
    void setMaterial(const RenderMaterial& material);

    bool isTransparent() const { return diffuse >> 24 != 255; }
    bool isShiny() const { return (specular & 0xffffff) != 0; }
    bool isMirrored() const;
};

static_assert(sizeof(InstanceRecord) == 64, "the vertex attributes are laid out for this size");

} // namespace vexel
