#include "ReadFile.h"

SbMatrix ReadFile::worldMatrix(const std::string& node) const
{
    SbMatrix matrix;
    for (std::string name = node; !name.empty(); name = nodes.at(name).parent)
        matrix.multRight(nodes.at(name).matrix);
    return matrix;
}

std::vector<std::string> ReadFile::nodesOf(Node::Kind kind) const
{
    std::vector<std::string> names;
    for (const std::string& name : nodeOrder) {
        if (nodes.at(name).kind == kind)
            names.push_back(name);
    }
    return names;
}

std::vector<std::string> ReadFile::childrenOf(const std::string& parent) const
{
    std::vector<std::string> names;
    for (const std::string& name : nodeOrder) {
        if (nodes.at(name).parent == parent)
            names.push_back(name);
    }
    return names;
}

const ReadFile::Shader& ReadFile::shaderOf(const std::string& model, std::size_t shading) const
{
    return shaders.at(nodes.at(model).shaders.at(shading));
}

const ReadFile::Material& ReadFile::materialOf(const std::string& model, std::size_t shading) const
{
    return materials.at(shaderOf(model, shading).material);
}
