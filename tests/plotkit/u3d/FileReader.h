#pragma once

#include "CodedData.h"
#include "ReadFile.h"

/** Reads a file; throws std::runtime_error at the first thing that is not as ECMA-363 wants it. */
class FileReader {
public:
    static ReadFile read(const std::vector<std::uint8_t>& bytes);
    static ReadFile read(const std::string& fileName);

private:
    FileReader(const std::vector<std::uint8_t>& bytes) : m_bytes(bytes) {}

    void readAll();
    void readHeader(CodedData& data);
    std::size_t readBlock(std::size_t at, bool isInChain);
    void readChain(CodedData& data, std::size_t dataBegin, std::size_t dataEnd);
    void readNode(std::uint32_t type, CodedData& data);
    void readShadingModifier(CodedData& data);
    void readMeshDeclaration(CodedData& data);
    void readMesh(CodedData& data);
    void readLineDeclaration(CodedData& data);
    void readLines(CodedData& data);
    void readLight(CodedData& data);
    void readView(CodedData& data);
    void readShader(CodedData& data);
    void readMaterial(CodedData& data);
    void checkReferences() const;

    const std::vector<std::uint8_t>& m_bytes;
    std::size_t m_firstContinuation = 0;
    std::size_t m_declared = 0;
    ReadFile m_file;
};
