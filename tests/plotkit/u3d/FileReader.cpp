#include "FileReader.h"
#include "Require.h"

#include <fstream>
#include <iterator>

namespace {

bool isContinuation(std::uint32_t type)
{
    return type >= 0xFFFFFF3B && type <= 0xFFFFFF3F;
}

/** What a bit stream may have left over: what pushed the last compressed value out, and a part of a byte. */
constexpr long Most_left = 32 + 16 + 7;

} // namespace

ReadFile FileReader::read(const std::vector<std::uint8_t>& bytes)
{
    FileReader reader(bytes);
    reader.readAll();
    return std::move(reader.m_file);
}

ReadFile FileReader::read(const std::string& fileName)
{
    std::ifstream stream(fileName, std::ios::binary);
    require(bool(stream), "no file " + fileName);
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    return read(bytes);
}

void FileReader::readAll()
{
    for (std::size_t at = 0; at < m_bytes.size();)
        at = readBlock(at, false);
    require(m_firstContinuation == 0 || m_firstContinuation == m_declared, "wrong size of declarations");
    checkReferences();
}

std::size_t FileReader::readBlock(std::size_t at, bool isInChain)
{
    require(at % 4 == 0 && at + 12 <= m_bytes.size(), "a block out of place");
    CodedData head(m_bytes.data() + at, 12);
    const std::uint32_t type = head.u32();
    const std::size_t size = head.u32();
    require(head.u32() == 0, "metadata");
    const std::size_t begin = at + 12;
    const std::size_t end = begin + (size + 3) / 4 * 4;
    require(end <= m_bytes.size(), "a block without its end");
    for (std::size_t i = begin + size; i < end; ++i)
        require(m_bytes[i] == 0, "padding that is not 0");
    require((at == 0) == (type == 0x00443355), "a header out of place");
    require(!isContinuation(type) || !isInChain, "a continuation in a chain");
    if (isContinuation(type) && m_firstContinuation == 0)
        m_firstContinuation = at;
    require(isContinuation(type) || m_firstContinuation == 0, "a declaration after continuations");

    CodedData data(m_bytes.data() + begin, size);
    switch (type) {
    case 0x00443355:
        readHeader(data);
        break;
    case 0xFFFFFF14:
        readChain(data, begin, begin + size);
        return end;
    case 0xFFFFFF21:
    case 0xFFFFFF22:
    case 0xFFFFFF23:
    case 0xFFFFFF24:
        readNode(type, data);
        break;
    case 0xFFFFFF31:
        readMeshDeclaration(data);
        break;
    case 0xFFFFFF37:
        readLineDeclaration(data);
        break;
    case 0xFFFFFF3B:
        readMesh(data);
        break;
    case 0xFFFFFF3F:
        readLines(data);
        break;
    case 0xFFFFFF45:
        readShadingModifier(data);
        break;
    case 0xFFFFFF51:
        readLight(data);
        break;
    case 0xFFFFFF52:
        readView(data);
        break;
    case 0xFFFFFF53:
        readShader(data);
        break;
    case 0xFFFFFF54:
        readMaterial(data);
        break;
    default:
        require(false, "a block of an unknown type");
    }
    require(data.numLeft() >= 0, "a block that ends too early");
    require(data.numLeft() <= (isContinuation(type) ? Most_left : 0), "a block with something behind its end");
    return end;
}

void FileReader::readHeader(CodedData& data)
{
    require(data.u32() == 0, "another version");
    require(data.u32() == 0, "another profile");
    m_declared = data.u32();
    require(data.u64() == m_bytes.size(), "wrong size of the file");
    require(data.u32() == 106, "another encoding");
}

void FileReader::readChain(CodedData& data, std::size_t dataBegin, std::size_t dataEnd)
{
    data.string();
    require(data.u32() <= 1, "another type of chain");
    require(data.u32() == 0, "attributes of a chain");
    while (data.bytePosition() % 4 != 0)
        require(data.u8() == 0, "padding in a chain");
    const std::uint32_t count = data.u32();
    std::size_t at = dataBegin + data.bytePosition();
    for (std::uint32_t i = 0; i < count; ++i)
        at = readBlock(at, true);
    require(at == dataEnd, "a chain of another length");
}

void FileReader::readNode(std::uint32_t type, CodedData& data)
{
    const std::string name = data.string();
    ReadFile::Node node;
    node.kind = ReadFile::Node::Kind(type - 0xFFFFFF21);
    require(data.u32() == 1, "a node with several parents");
    node.parent = data.string();
    require(node.parent.empty() || m_file.nodes.count(node.parent) == 1, "a node before its parent");
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            node.matrix[row][column] = data.f32();
    }
    if (node.kind != ReadFile::Node::Group)
        node.resource = data.string();
    if (node.kind == ReadFile::Node::Model)
        node.visibility = data.u32();
    if (node.kind == ReadFile::Node::View) {
        node.viewAttributes = data.u32();
        for (int i = 0; i < 7; ++i)
            node.viewNumbers.push_back(data.f32());
        require(data.u32() == 0 && data.u32() == 0, "pictures in a view");
    }
    require(!name.empty() && m_file.nodes.emplace(name, node).second, "two nodes of one name");
    m_file.nodeOrder.push_back(name);
}

void FileReader::readShadingModifier(CodedData& data)
{
    ReadFile::Node& node = m_file.nodes.at(data.string());
    require(data.u32() == 1, "the modifier is not the second");
    require(data.u32() == 15, "other attributes of shading");
    for (std::uint32_t count = data.u32(); count > 0; --count) {
        require(data.u32() == 1, "several shaders for one shading");
        node.shaders.push_back(data.string());
    }
}

void FileReader::checkReferences() const
{
    for (const auto& [name, mesh] : m_file.meshes)
        require(mesh.isComplete, "a mesh without its data");
    for (const auto& [name, lineSet] : m_file.lineSets)
        require(lineSet.isComplete, "a line set without its data");
    for (const auto& [name, shader] : m_file.shaders)
        require(m_file.materials.count(shader.material) == 1, "a shader without a material");
    for (const auto& [name, node] : m_file.nodes) {
        require(node.parent.empty() || m_file.nodes.at(node.parent).kind == ReadFile::Node::Group, "a parent");
        if (node.kind == ReadFile::Node::Light)
            require(m_file.lights.count(node.resource) == 1, "a light without its resource");
        if (node.kind == ReadFile::Node::View)
            require(m_file.views.count(node.resource) == 1, "a view without its resource");
        if (node.kind != ReadFile::Node::Model)
            continue;
        require(m_file.meshes.count(node.resource) + m_file.lineSets.count(node.resource) == 1, "no such model");
        const auto lines = m_file.lineSets.find(node.resource);
        const std::size_t shadings = lines == m_file.lineSets.end() ? 1 : lines->second.numShadings;
        require(node.shaders.size() == shadings, "not a shader for each shading");
        for (const std::string& shader : node.shaders)
            require(m_file.shaders.count(shader) == 1, "no such shader");
    }
}
