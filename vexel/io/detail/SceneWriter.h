#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>

#include <vexel/io/detail/PathExtract.h>

class SoField;
class SoFieldContainer;
class SoOutput;
class SoPath;
class SoUnknownNode;

/** Writes nodes, engines and paths as ascii scene text; what stands in several places is written once and then used. */
class SceneWriter {
public:
    explicit SceneWriter(SoOutput& out) : m_out(out) {}

    /** Counts what stands below @p root, so that shared objects are known before the first is written. */
    void prepare(const SoFieldContainer* root);
    void writeContainer(const SoFieldContainer* container);
    void writePath(const SoPath* path);
    /**
     * Confines what is written to what belongs to @p path, and counts it. It shares nothing with what was written
     * before, which may hold more or less of the same groups.
     */
    void beginPath(const SoPath& path);
    void endPath();
    /** What of the graph is written. */
    const PathExtract& extract() const { return m_extract; }
    /** The fields that differ from their defaults, are ignored or connected. */
    void writeFields(const SoFieldContainer& container);

    /** Declarations and kept text of an unknown node. */
    void writeUnknownBody(const SoUnknownNode& node);

    /** The name under which an object is defined in the file; empty for one that needs none. */
    const std::string& nameOf(const SoFieldContainer* container);

private:
    struct Mention {
        int count = 0;
        bool isWritten = false;
        bool isNamed = false;
        std::string name;
    };

    void writeBody(const SoFieldContainer& container);
    void writeConnection(const SoField& field);

    SoOutput& m_out;
    PathExtract m_extract;
    std::unordered_map<const SoFieldContainer*, Mention> m_mentions;
    std::unordered_set<std::string> m_usedNames;
    std::unordered_map<std::string, int> m_suffixes;
};
