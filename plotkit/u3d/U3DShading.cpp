#include "U3DShading.h"

#include <utility>

namespace {

// Attributes and choices of shaders and materials.
constexpr std::uint32_t Lit = 1;
constexpr std::uint32_t Vertex_colors = 4;
constexpr std::uint32_t Always = 0x617;
constexpr std::uint32_t Alpha_blend = 0x606;
constexpr std::uint32_t All_material_values = 0x3F;

} // namespace

const std::string& U3DShadingPalette::add(const U3DShading& shading)
{
    std::vector<float> values;
    for (const SbVec3f& color : {shading.ambient, shading.diffuse, shading.specular, shading.emissive}) {
        for (int i = 0; i < 3; ++i)
            values.push_back(u3dInRange(color[i]));
    }
    values.push_back(u3dInRange(shading.shininess));
    values.push_back(u3dInRange(shading.opacity));
    const std::uint32_t attributes = (shading.isLit ? Lit : 0) | (shading.hasVertexColors ? Vertex_colors : 0);
    std::vector<float> key = values;
    key.push_back(float(attributes));
    const auto [found, isNew] = m_byValues.try_emplace(std::move(key));
    if (!isNew)
        return found->second;

    const std::string& name = found->second = m_names.add(shading.name);
    U3DBitStream shader;
    shader.putString(name);
    shader.putU32(attributes);
    shader.putF32(0); // what the test of alpha compares with
    shader.putU32(Always);
    shader.putU32(Alpha_blend);
    shader.putU32(1); // enabled
    shader.putU32(0); // texture layers
    shader.putU32(0); // texture layers that have alpha
    shader.putString(name);
    appendU3DBlock(m_shaders, U3DBlockType::LitTextureShader, shader.finish());

    U3DBitStream material;
    material.putString(name);
    material.putU32(All_material_values);
    for (const float value : values)
        material.putF32(value);
    appendU3DBlock(m_materials, U3DBlockType::MaterialResource, material.finish());
    return name;
}

U3DBytes U3DShadingPalette::declarations() const
{
    U3DBytes bytes = m_shaders;
    bytes.insert(bytes.end(), m_materials.begin(), m_materials.end());
    return bytes;
}
