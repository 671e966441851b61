#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec4f.h>

#include <array>
#include <map>
#include <string>
#include <vector>

/** What a file of ECMA-363 holds, by names, as a reader finds it. */
struct ReadFile {
    struct Node {
        enum Kind { Group, Model, Light, View } kind = Group;
        std::string parent;
        SbMatrix matrix;
        std::string resource;
        std::uint32_t visibility = 0;
        std::vector<std::string> shaders;
        std::uint32_t viewAttributes = 0;
        std::vector<float> viewNumbers; ///< near, far, height, viewport
    };
    struct Corner {
        std::uint32_t position, normal, color;
    };
    struct Mesh {
        std::array<std::uint32_t, 6> declared{}; ///< faces, positions, normals, diffuse, specular, texture coordinates
        std::uint32_t shadingAttributes = 0;
        std::uint32_t resolutions[2] = {0, 0};
        std::vector<SbVec3f> positions, normals;
        std::vector<SbVec4f> colors;
        std::vector<std::array<Corner, 3>> faces;
        bool isComplete = false;
    };
    struct LineSet {
        std::uint32_t declaredLines = 0, declaredPositions = 0, numShadings = 0;
        float step = 0;
        std::vector<SbVec3f> positions;
        std::vector<std::array<std::uint32_t, 3>> lines; ///< ends and shading
        bool isComplete = false;
    };
    struct Shader {
        std::uint32_t attributes = 0;
        std::string material;
    };
    struct Material {
        SbVec3f ambient, diffuse, specular, emissive;
        float reflectivity = 0, opacity = 0;
    };
    struct Light {
        std::uint32_t attributes = 0, type = 0;
        SbVec3f color, attenuation;
        float spotAngle = 0, intensity = 0;
    };

    std::vector<std::string> nodeOrder;
    std::map<std::string, Node> nodes;
    std::map<std::string, Mesh> meshes;
    std::map<std::string, LineSet> lineSets;
    std::map<std::string, Shader> shaders;
    std::map<std::string, Material> materials;
    std::map<std::string, Light> lights;
    std::map<std::string, std::string> views; ///< what they show

    SbMatrix worldMatrix(const std::string& node) const;
    std::vector<std::string> nodesOf(Node::Kind kind) const;
    std::vector<std::string> childrenOf(const std::string& parent) const;
    const Material& materialOf(const std::string& model, std::size_t shading = 0) const;
    const Shader& shaderOf(const std::string& model, std::size_t shading = 0) const;
};
