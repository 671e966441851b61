#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include <vexel/base/SoType.h>
#include <vexel/io/detail/KeptObjects.h>
#include <vexel/io/detail/SceneConnections.h>

class SoBase;
class SoField;
class SoFieldContainer;
class SoInput;
class SoNode;
class SoPath;
class SoUnknownNode;
class TextReader;

/** Reads nodes, engines, paths and global fields of an ascii scene, and keeps the names that the scene defined so far.
 */
class SceneReader {
public:
    explicit SceneReader(SoInput& in);
    SceneReader(const SceneReader&) = delete;
    SceneReader& operator=(const SceneReader&) = delete;

    /** What may stand at the top of a file. */
    enum class Item { Node, Path, Global, Nothing, Error };
    /** Reads the next item; nodes and paths are held by the reader until it ends. */
    Item readItem(SoNode*& node, SoPath*& path);

    /** Reads a container derived from @p family, or NULL; held by the reader until it ends. False after an error. */
    bool readContainer(SoType family, SoFieldContainer*& container);
    bool readPath(SoPath*& path);
    /** Reads a global field with the word that introduces it. */
    bool readGlobalField(SoField*& field);
    /** Reads fields until something else comes. */
    bool readFields(SoFieldContainer& container);

    /** Graphs deeper than this are not read: what lies below is left out with an error. */
    static constexpr int MaxDepth = 1000;

private:
    struct Definition {
        SoFieldContainer* container = nullptr;
        bool isOpen = false;
    };

    void leaveOutUnlessOf(SoType family, const char* place, SoFieldContainer*& container);
    /** What a USE in a connection refers to. */
    struct Source {
        SoFieldContainer* container = nullptr;
        std::string_view outputName; ///< when it stands in one word with the name of the object
        bool isComplete = true;
    };
    bool readUse(SoFieldContainer*& container);
    /** Also of an object that is not complete: a connection leads to it, it is not contained. */
    bool readUse(Source& source);
    bool readDefined(SoType family, std::string_view typeName, const std::string* name, SoFieldContainer*& container);
    bool readBody(SoFieldContainer& container, const char* opening);
    bool readChild(SoNode& parent);
    bool readField(SoField& field);
    bool readConnection(SoField& field);
    bool postUndefined(const char* place, std::string_view word);
    bool readUnknown(SoUnknownNode& node, const char* opening);
    bool readDeclarations(SoUnknownNode& node);
    void skipUnknownField(const SoFieldContainer& container);
    bool isNodeAhead();
    bool readGlobal(SoField*& field);
    bool postMissingBrace(std::string_view typeName, const char* opening);

    SoInput& m_in;
    TextReader& m_text;
    std::unordered_map<std::string, Definition> m_definitions;
    KeptObjects m_kept;
    SceneConnections m_connections;
    int m_depth = 0;
};
