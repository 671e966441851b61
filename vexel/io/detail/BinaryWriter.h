#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include <vexel/io/detail/SceneWriter.h>

/** Writes a graph or a path in the binary form; see BinaryFormat.h. */
class BinaryWriter {
public:
    explicit BinaryWriter(SoOutput& out);

    /** Writes @p path when there is one, otherwise the graph below @p root, which the scene writer was prepared for. */
    void write(const SoNode& root, const SoPath* path);

private:
    class Chunk;

    std::uint32_t nameIndex(std::string_view name);
    void putNumber(std::uint32_t number);
    void putLongNumber(std::uint64_t number);
    void pad();

    void writeContainer(const SoFieldContainer* container);
    void writeReference(const SoBase* base);
    void writePath(const SoPath* path);
    void writeField(const SoFieldContainer& container, const SoField& field, std::string_view name);
    void writeConnection(const SoField& field);
    void writeText(std::uint32_t kind, std::uint32_t argument, std::string_view text);

    SoOutput& m_out;
    SceneWriter& m_names;
    std::string m_body;
    std::unordered_map<std::string, std::uint32_t> m_nameIndices;
    std::string m_nameTable;
    std::unordered_map<const SoFieldContainer*, std::uint32_t> m_written;
};
