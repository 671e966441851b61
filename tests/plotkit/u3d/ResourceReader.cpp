#include "FileReader.h"
#include "Require.h"

#include <algorithm>

namespace {

SbVec3f vector(CodedData& data)
{
    const float x = data.f32();
    const float y = data.f32();
    return {x, y, data.f32()};
}

} // namespace

void FileReader::readMeshDeclaration(CodedData& data)
{
    const std::string name = data.string();
    ReadFile::Mesh mesh;
    require(data.u32() == 0, "a mesh that is not the first of its chain");
    require(data.u32() == 0, "a mesh without normals");
    for (std::uint32_t& count : mesh.declared)
        count = data.u32();
    require(data.u32() == 1, "several shadings of a mesh");
    mesh.shadingAttributes = data.u32();
    require(data.u32() == 0, "texture layers");
    require(data.u32() == 0, "the number of a shading");
    mesh.resolutions[0] = data.u32();
    mesh.resolutions[1] = data.u32();
    for (int i = 0; i < 3; ++i)
        data.u32();
    for (int i = 0; i < 5; ++i)
        require(data.f32() > 0, "a step of nothing");
    for (int i = 0; i < 3; ++i)
        data.f32();
    require(data.u32() == 0, "bones");
    require(m_file.lineSets.count(name) == 0 && m_file.meshes.emplace(name, mesh).second, "two models of one name");
}

void FileReader::readMesh(CodedData& data)
{
    ReadFile::Mesh& mesh = m_file.meshes.at(data.string());
    require(!mesh.isComplete, "a mesh that comes twice");
    mesh.isComplete = true;
    require(data.u32() == 0, "not the first of its chain");
    std::array<std::uint32_t, 6> counts;
    for (std::uint32_t& count : counts)
        count = data.u32();
    require(counts == mesh.declared, "other counts than declared");
    for (std::uint32_t i = 0; i < counts[1]; ++i)
        mesh.positions.push_back(vector(data));
    for (std::uint32_t i = 0; i < counts[2]; ++i)
        mesh.normals.push_back(vector(data));
    for (std::uint32_t i = 0; i < counts[3]; ++i) {
        const SbVec3f color = vector(data);
        mesh.colors.emplace_back(color[0], color[1], color[2], data.f32());
    }
    require(counts[4] == 0 && counts[5] == 0, "specular colours or texture coordinates");
    const bool hasColors = mesh.shadingAttributes == 1;
    require(hasColors == (counts[3] > 0), "colours that nothing uses");
    for (std::uint32_t i = 0; i < counts[0]; ++i) {
        require(data.c32(1) == 0, "a shading that is not declared");
        std::array<ReadFile::Corner, 3>& face = mesh.faces.emplace_back();
        for (ReadFile::Corner& corner : face) {
            corner.position = data.c32(0x400 + counts[1]);
            corner.normal = data.c32(0x400 + counts[2]);
            corner.color = hasColors ? data.c32(0x400 + counts[3]) : 0;
            require(corner.position < counts[1] && corner.normal < counts[2] &&
                        (!hasColors || corner.color < counts[3]),
                    "an index beyond the end");
        }
    }
}

void FileReader::readLineDeclaration(CodedData& data)
{
    const std::string name = data.string();
    ReadFile::LineSet lineSet;
    require(data.u32() == 0 && data.u32() == 0, "not the first of its chain");
    lineSet.declaredLines = data.u32();
    lineSet.declaredPositions = data.u32();
    for (int i = 0; i < 4; ++i)
        require(data.u32() == 0, "normals, colours or texture coordinates of lines");
    lineSet.numShadings = data.u32();
    for (std::uint32_t i = 0; i < lineSet.numShadings; ++i)
        require(data.u32() == 0 && data.u32() == 0 && data.u32() == i, "an unusual shading");
    for (int i = 0; i < 3; ++i)
        data.u32();
    lineSet.step = data.f32();
    for (int i = 0; i < 4; ++i)
        require(data.f32() > 0, "a step of nothing");
    for (int i = 0; i < 4; ++i)
        require(data.u32() == 0, "something reserved, or bones");
    require(m_file.meshes.count(name) == 0 && m_file.lineSets.emplace(name, lineSet).second, "two models of one name");
}

void FileReader::readLines(CodedData& data)
{
    ReadFile::LineSet& lineSet = m_file.lineSets.at(data.string());
    require(!lineSet.isComplete, "a line set that comes twice");
    lineSet.isComplete = true;
    require(data.u32() == 0 && data.u32() == 0, "not from the begin");
    require(data.u32() == lineSet.declaredPositions, "not to the end");
    for (std::uint32_t i = 0; i < lineSet.declaredPositions; ++i) {
        const std::uint32_t range = 0x400 + std::max(i, 1u);
        const std::uint32_t split = data.c32(range);
        const std::uint32_t signs = data.c8(20);
        SbVec3f position = i == 0 ? SbVec3f(0, 0, 0) : lineSet.positions.at(split);
        for (int k = 0; k < 3; ++k) {
            const float difference = lineSet.step * float(data.c32(21 + std::uint32_t(k)));
            position[k] += signs & (1u << k) ? -difference : difference;
        }
        lineSet.positions.push_back(position);
        require(data.c32(40) == 0, "normals of lines");
        const std::uint32_t numLines = data.c32(1);
        for (std::uint32_t k = 0; k < numLines; ++k) {
            const std::uint32_t shading = data.c32(1);
            require(shading < lineSet.numShadings, "a shading that is not declared");
            const std::uint32_t from = data.c32(range);
            require(from < i, "a line to what is not there yet");
            require(data.c32(45) == 2 * k && data.c32(45) == 2 * k + 1, "numbers of normals");
            lineSet.lines.push_back({from, i, shading});
        }
    }
    require(lineSet.lines.size() == lineSet.declaredLines, "other counts than declared");
}

void FileReader::readLight(CodedData& data)
{
    const std::string name = data.string();
    ReadFile::Light light;
    light.attributes = data.u32();
    light.type = data.u8();
    light.color = vector(data);
    require(data.f32() == 1, "a transparent light");
    light.attenuation = vector(data);
    light.spotAngle = data.f32();
    light.intensity = data.f32();
    require(m_file.lights.emplace(name, light).second, "two lights of one name");
}

void FileReader::readView(CodedData& data)
{
    const std::string name = data.string();
    require(data.u32() == 1, "several passes");
    const std::string root = data.string();
    require(data.u32() == 0, "fog");
    data.u32();
    for (int i = 0; i < 6; ++i)
        data.f32();
    require(m_file.views.emplace(name, root).second, "two views of one name");
}

void FileReader::readShader(CodedData& data)
{
    const std::string name = data.string();
    ReadFile::Shader shader;
    shader.attributes = data.u32();
    data.f32();
    require(data.u32() == 0x617, "a test of alpha");
    require(data.u32() == 0x606, "another way to blend");
    require(data.u32() == 1 && data.u32() == 0 && data.u32() == 0, "passes or textures");
    shader.material = data.string();
    require(m_file.shaders.emplace(name, shader).second, "two shaders of one name");
}

void FileReader::readMaterial(CodedData& data)
{
    const std::string name = data.string();
    ReadFile::Material material;
    require(data.u32() == 0x3F, "a material that leaves values out");
    material.ambient = vector(data);
    material.diffuse = vector(data);
    material.specular = vector(data);
    material.emissive = vector(data);
    material.reflectivity = data.f32();
    material.opacity = data.f32();
    require(m_file.materials.emplace(name, material).second, "two materials of one name");
}
