#include <vexel/render/detail/InstanceRecord.h>

namespace vexel {

namespace {

std::uint32_t toByte(float value)
{
    // Written so that a value which is not a number counts as 0.
    return value > 0 ? value < 1 ? static_cast<std::uint32_t>(value * 255.0f + 0.5f) : 255u : 0u;
}

std::uint32_t pack(const SbVec3f& color, float fourth)
{
    return toByte(color[0]) | toByte(color[1]) << 8 | toByte(color[2]) << 16 | toByte(fourth) << 24;
}

} // namespace

void InstanceRecord::setMatrix(const SbMatrix& matrix)
{
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column)
            rows[row * 4 + column] = matrix[column][row];
    }
}

void InstanceRecord::setMaterial(const RenderMaterial& material)
{
    diffuse = pack(material.diffuse, 1.0f - material.transparency);
    ambient = pack(material.ambient, 0);
    emissive = pack(material.emissive, 0);
    specular = pack(material.specular, material.shininess);
}

bool InstanceRecord::isMirrored() const
{
    const float* a = rows;
    const float* b = rows + 4;
    const float* c = rows + 8;
    return a[0] * (b[1] * c[2] - b[2] * c[1]) - a[1] * (b[0] * c[2] - b[2] * c[0]) +
               a[2] * (b[0] * c[1] - b[1] * c[0]) <
           0;
}

} // namespace vexel
