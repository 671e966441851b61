#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <vexel/base/SbBasic.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec4f.h>

class SoEnvironment;
class SoLight;
class SoState;

namespace vexel {

class RenderSurroundings;

/** Lights, clip planes and environment of the state, one object for all places where they are the same. */
class SurroundingsCache {
public:
    SurroundingsCache();
    ~SurroundingsCache();

    std::shared_ptr<RenderSurroundings> get(const SoState& state);
    /** Fetches the values of all lights and environments anew. Those in use must still be alive. */
    void refresh();

private:
    struct Recipe;

    std::unordered_multimap<std::size_t, std::unique_ptr<Recipe>> m_recipes;
};

} // namespace vexel
