#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include <vexel/io/detail/KeptObjects.h>
#include <vexel/io/detail/SceneConnections.h>

class SoBase;
class SoField;
class SoFieldContainer;
class SoInput;
class SoNode;
class SoPath;
class SoUnknownNode;

/** Reads a scene in the binary form; see BinaryFormat.h. Every length is checked against what holds it. */
class BinaryReader {
public:
    BinaryReader(SoInput& in, const char* data, std::size_t size);
    BinaryReader(const BinaryReader&) = delete;
    BinaryReader& operator=(const BinaryReader&) = delete;

    /** Checks preamble and check sum and reads the names. False, with an error posted, for a damaged file. */
    bool open();
    /** Reads the next node or path, held by the reader; null at the end. False after an error. */
    bool readItem(SoBase*& base);

private:
    struct Bytes {
        const char* at = nullptr;
        const char* end = nullptr;
        std::size_t size() const { return static_cast<std::size_t>(end - at); }
    };
    struct Chunk {
        std::uint32_t kind = 0;
        std::uint32_t argument = 0;
        Bytes body;
    };

    bool post(const char* at, const char* message);
    template <class Number>
    bool take(Bytes& bytes, Number& number);
    bool takeChunk(Bytes& bytes, Chunk& chunk);
    bool nameAt(std::uint32_t index, std::string_view& name, const char* at);
    bool readNames(Bytes& bytes);
    bool readObject(const Chunk& chunk, SoBase*& base);
    bool readContainer(const Chunk& chunk, SoBase*& base);
    bool readUnknown(SoUnknownNode& node, const Chunk& chunk);
    bool readField(SoFieldContainer& container, const Chunk& chunk);
    bool readValue(SoField& field, const Chunk& chunk, std::uint64_t count);
    bool readConnection(SoField& field, const Chunk& chunk);
    bool readPath(const Chunk& chunk, SoBase*& base);

    SoInput& m_in;
    const char* m_start;
    Bytes m_rest;
    std::vector<std::string_view> m_names;
    struct Made {
        SoFieldContainer* container;
        bool isOpen;
    };
    std::vector<Made> m_made;
    KeptObjects m_kept;
    SceneConnections m_connections;
    int m_depth = 0;
};
