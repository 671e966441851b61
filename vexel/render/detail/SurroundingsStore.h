#pragma once

#include <cstdint>
#include <unordered_map>

namespace vexel {

class ProgramKey;
class RenderSurroundings;

/** The uniform blocks of lights, clip planes and fog of one context. */
class SurroundingsStore {
public:
    /** Binds the block, after bringing it up to date. Null binds nothing. */
    void bind(const RenderSurroundings* surroundings);

    /** Sets the knobs that depend on the surroundings. */
    static void describe(const RenderSurroundings* surroundings, ProgramKey& key);

    bool drop(std::uint64_t id);
    void clear();

private:
    struct Entry {
        unsigned buffer = 0;
        std::uint64_t version = 0;
    };

    std::unordered_map<std::uint64_t, Entry> m_entries;
    unsigned m_dark = 0; // for packets without surroundings
};

} // namespace vexel
