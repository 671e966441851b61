#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include <vexel/actions/detail/CompiledShape.h>
#include <vexel/base/SbBasic.h>
#include <vexel/pick/PickScene.h>
#include <vexel/render/DrawList.h>

class SoNode;
class SoPath;
class SoShape;

namespace vexel {

/** One step down a graph; the index is -1 for nodes held in fields. */
struct SceneStep {
    SoNode* node;
    int index;
};

/** One place of a separator in the graph, and what is in it. */
struct SceneScope {
    enum class Dirt : std::uint8_t {
        None,
        Below, ///< only scopes below have changed
        Own,   ///< its shapes and the list of its scopes have changed
        Deep   ///< everything in it
    };

    SoNode* node = nullptr;
    SbUniqueId id = 0;
    SceneScope* parent = nullptr;
    std::vector<SceneStep> way; ///< from the scope above
    std::vector<std::unique_ptr<SceneScope>> scopes;
    std::vector<std::uint32_t> shapes;
    // Neighbours in the list of all places of the same separator.
    SceneScope* nextTwin = nullptr;
    SceneScope* previousTwin = nullptr;
    std::uint32_t position = 0; ///< among the scopes of the parent, as they were when it was compiled last
    Dirt dirt = Dirt::None;
    bool usesView = false; ///< holds something that depends on the camera
};

/** One place of a shape. */
struct SceneShape {
    static constexpr std::uint32_t None = ~std::uint32_t(0);
    enum class Picking : std::uint8_t { Shape, Box, Never };

    SoShape* node = nullptr;
    const SceneScope* scope = nullptr;
    std::vector<SceneStep> way; ///< from the scope
    std::shared_ptr<const CompiledShape> shape;
    SbMatrix matrix;
    RenderMaterial material;
    std::shared_ptr<const RenderSurroundings> surroundings;
    float pixelSize = 1;
    bool isInFront = false; ///< of everything that is not
    Picking picking = Picking::Shape;
    DrawList::Segment segment = 0;
    std::array<std::uint32_t, CompiledShape::NumKinds> packets{None, None, None};
    std::array<std::uint32_t, CompiledShape::NumKinds> items{None, None, None};
};

/** All places of separators and shapes of a graph, with the lists for drawing and picking that follow them. */
class VEXEL_API SceneTree {
public:
    SceneTree();
    ~SceneTree();

    DrawList& drawList() { return m_list; }
    /** Filled when it is first asked for. */
    PickScene& pickScene();

    SceneScope* root() const { return m_root.get(); }
    void clear();

    std::unique_ptr<SceneScope> makeScope(SoNode& node, SceneScope* parent);
    void setRoot(std::unique_ptr<SceneScope> root) { m_root = std::move(root); }
    /** Takes a scope out with all that is in it. */
    void dispose(std::unique_ptr<SceneScope> scope);
    /** The first of the places of a separator; null for none. */
    SceneScope* firstPlace(SbUniqueId node) const;

    std::uint32_t addShape();
    /** Draws and picks the shape anew, with what its place says by now; its geometry, matrix and so on are set. */
    void place(std::uint32_t shape, const RenderState& state, DrawList::Segment segment);
    void removeShape(std::uint32_t shape);
    SceneShape& shape(std::uint32_t index) { return m_shapes[index]; }
    const SceneShape& shape(std::uint32_t index) const { return m_shapes[index]; }
    /** Calls @p visit(number, shape) for each shape. */
    template <class Visit>
    void forEachShape(Visit&& visit) const
    {
        for (std::size_t i = 0; i < m_shapes.size(); ++i) {
            if (m_shapes[i].shape)
                visit(static_cast<std::uint32_t>(i), m_shapes[i]);
        }
    }

    /** The way from the root to a shape; a new path with a reference count of 0. */
    SoPath* pathOf(std::uint32_t shape) const;
    /** The packets of all shapes that are reached along a path, which starts anywhere. */
    std::vector<DrawList::Packet> packetsBelow(const SoPath& path) const;

private:
    bool isReachedAlong(const SoPath& path, const SceneShape& shape) const;
    std::vector<const SceneScope*> scopesAlong(const SoPath& path) const;
    void updateItems(SceneShape& shape, std::uint32_t index);
    void removeItems(SceneShape& shape);
    std::vector<SceneStep> fullWay(const SceneShape& shape) const;

    DrawList m_list;
    std::unique_ptr<PickScene> m_pickScene;
    std::unique_ptr<SceneScope> m_root;
    std::unordered_map<SbUniqueId, SceneScope*> m_places;
    std::vector<SceneShape> m_shapes;
    std::vector<std::uint32_t> m_free;
};

} // namespace vexel
