#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>

class SoBase;
class SoField;
class SoFieldContainer;
class SoNode;
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
    /** Number of nodes of a path that indices lead to: nodes held in fields are not reached by them. */
    static int writableLength(const SoPath& path);
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

    template <class Visit>
    void forEachHeld(const SoFieldContainer& container, Visit&& visit) const;
    void writeBody(const SoFieldContainer& container);
    void writeConnection(const SoField& field);

    SoOutput& m_out;
    std::unordered_map<const SoFieldContainer*, Mention> m_mentions;
    std::unordered_set<std::string> m_usedNames;
    std::unordered_map<std::string, int> m_suffixes;
};
