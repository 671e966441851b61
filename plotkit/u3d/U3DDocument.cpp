#include "U3DDocument.h"

#include <QIODevice>

#include <utility>

namespace {

constexpr std::uint32_t Utf8 = 106;
constexpr std::uint64_t Header_size = 36;
/** Sizes of blocks, and of all declarations, have 32 bits. */
constexpr std::uint64_t Largest_size = 0xFFFFFFFF;

// Attributes of models, their shading, lights and views.
constexpr std::uint32_t Front = 1;
constexpr std::uint32_t Front_and_back = 3;
constexpr std::uint32_t Shades_everything = 15;
constexpr std::uint32_t Enabled_with_highlights = 3;
constexpr std::uint32_t Decays_to_the_edge = 4;
constexpr std::uint32_t Orthographic = 2;

/** What every node begins with: its name, its only parent, and its place there. */
U3DBitStream nodeHead(const std::string& name, const std::string& parent, const SbMatrix& matrix)
{
    U3DBitStream data;
    data.putString(name);
    data.putU32(1);
    data.putString(parent);
    // Columns for vectors on the right are rows for vectors on the left.
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            data.putF32(matrix[row][column]);
    }
    return data;
}

U3DBytes shadingModifier(const std::string& name, const std::vector<std::string>& shaders)
{
    U3DBitStream data;
    data.putString(name);
    data.putU32(1); // index in the chain
    data.putU32(Shades_everything);
    data.putU32(std::uint32_t(shaders.size()));
    for (const std::string& shader : shaders) {
        data.putU32(1); // shaders for this shading
        data.putString(shader);
    }
    return data.finish();
}

bool writeBytes(QIODevice& device, const U3DBytes& bytes)
{
    const auto size = qint64(bytes.size());
    return device.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
}

} // namespace

void U3DDocument::appendNode(std::string_view name, U3DBlockType type, U3DBitStream data)
{
    U3DBytes block;
    appendU3DBlock(block, type, data.finish());
    appendU3DChain(type == U3DBlockType::GroupNode ? m_groups : m_nodes, name, U3DChainType::Node, 1, block);
}

std::string U3DDocument::addGroup(std::string_view wanted, const std::string& parent, const SbMatrix& matrix)
{
    std::string name = m_nodeNames.add(wanted);
    appendNode(name, U3DBlockType::GroupNode, nodeHead(name, parent, matrix));
    return name;
}

void U3DDocument::addModel(std::string_view wanted, const std::string& parent, const SbMatrix& matrix,
                           U3DModelKind kind, U3DModelResource resource, const std::vector<U3DShading>& shadings,
                           bool showsBacks)
{
    const std::string name = m_nodeNames.add(wanted);
    std::vector<std::string> shaders;
    for (const U3DShading& shading : shadings)
        shaders.push_back(m_shadings.add(shading));
    U3DBitStream data = nodeHead(name, parent, matrix);
    data.putString(m_models.add(name, kind, std::move(resource)));
    data.putU32(showsBacks ? Front_and_back : Front);
    U3DBytes blocks;
    appendU3DBlock(blocks, U3DBlockType::ModelNode, data.finish());
    appendU3DBlock(blocks, U3DBlockType::ShadingModifier, shadingModifier(name, shaders));
    appendU3DChain(m_nodes, name, U3DChainType::Node, 2, blocks);
}

void U3DDocument::addLight(std::string_view wanted, const std::string& parent, const SbMatrix& matrix,
                           const U3DLight& light)
{
    const std::string name = m_nodeNames.add(wanted);
    U3DBitStream node = nodeHead(name, parent, matrix);
    node.putString(name);
    appendNode(name, U3DBlockType::LightNode, std::move(node));

    U3DBitStream resource;
    resource.putString(name);
    resource.putU32(Enabled_with_highlights | (light.decays ? Decays_to_the_edge : 0));
    resource.putU8(light.type);
    for (int i = 0; i < 3; ++i)
        resource.putF32(light.color[i]);
    resource.putF32(1);
    for (int i = 0; i < 3; ++i)
        resource.putF32(light.attenuation[i]);
    resource.putF32(light.coneAngle);
    resource.putF32(light.intensity);
    appendU3DBlock(m_lights, U3DBlockType::LightResource, resource.finish());
}

void U3DDocument::addView(std::string_view wanted, const std::string& parent, const SbMatrix& matrix,
                          const U3DView& view)
{
    const std::string name = m_nodeNames.add(wanted);
    U3DBitStream node = nodeHead(name, parent, matrix);
    node.putString(name);
    node.putU32(view.isPerspective ? 0 : Orthographic);
    for (const float value : {view.nearDistance, view.farDistance, view.height, view.pixelWidth, view.pixelHeight})
        node.putF32(value);
    node.putF32(0);
    node.putF32(0);
    node.putU32(0); // pictures behind
    node.putU32(0); // pictures in front
    appendNode(name, U3DBlockType::ViewNode, std::move(node));

    U3DBitStream resource;
    resource.putString(name);
    resource.putU32(1);     // passes
    resource.putString(""); // the world
    resource.putU32(0);     // no fog: its mode, colour and distances
    resource.putU32(1);
    for (const float value : {0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 1.0f})
        resource.putF32(value);
    appendU3DBlock(m_views, U3DBlockType::ViewResource, resource.finish());
}

bool U3DDocument::write(QIODevice& device) const
{
    const U3DBytes models = m_models.declarations();
    const U3DBytes shadings = m_shadings.declarations();
    const U3DBytes* const declarations[] = {&m_groups, &m_nodes, &models, &shadings, &m_lights, &m_views};
    std::uint64_t declared = Header_size;
    for (const U3DBytes* const part : declarations)
        declared += part->size();
    if (declared > Largest_size)
        return false;

    U3DBitStream data;
    data.putU32(0); // version
    data.putU32(0); // profile
    data.putU32(std::uint32_t(declared));
    data.putU64(declared + m_models.numContinuationBytes());
    data.putU32(Utf8);
    U3DBytes header;
    appendU3DBlock(header, U3DBlockType::FileHeader, data.finish());
    if (!writeBytes(device, header))
        return false;
    for (const U3DBytes* const part : declarations) {
        if (!writeBytes(device, *part))
            return false;
    }
    for (std::size_t i = 0; i < m_models.numContinuations(); ++i) {
        const U3DBytes block = m_models.continuation(i);
        if (block.size() > Largest_size || !writeBytes(device, block))
            return false;
    }
    return true;
}
