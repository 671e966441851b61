#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <vexel/actions/SoAction.h>
#include <vexel/actions/detail/SceneTree.h>
#include <vexel/actions/detail/ShapeCache.h>
#include <vexel/actions/detail/SurroundingsCache.h>
#include <vexel/actions/detail/TextureCache.h>
#include <vexel/base/VexelApi.h>

class SoBackground;
class SoCallback;

namespace vexel {

/**
 * Walks a graph and puts what it shows into a SceneTree. On further walks, places without changes are left as they
 * are, and others are compared with what is there.
 */
class VEXEL_API SceneCompiler : public SoAction {
    SO_ACTION(SceneCompiler, SoAction)
public:
    SceneCompiler(SceneTree& tree, const ChangeStamps& stamps);
    ~SceneCompiler() override;

    void setViewportRegion(const SbViewportRegion& region) { state().setViewportRegion(region); }
    /** Called when the turn of a callback node comes in drawing. */
    std::function<void(SoCallback&)> callCallback;

    /** Forgets all that was found; the next walk starts anew. */
    void reset();
    /** False when places could not be matched with those of the walk before: reset and walk again. */
    bool isConsistent() const { return m_isConsistent; }
    /** Looks through the camera anew. */
    void refreshView();
    void refreshSurroundings() { m_surroundings.refresh(); }
    void sweep() { m_shapes.sweep(); }

    /** View of the first camera; the default volume without one. */
    const SbViewVolume& viewVolume() const { return m_camera.volume; }
    const SbVec2s& viewPixels() const { return m_camera.pixels; }
    /** The first camera; null for none. */
    const SoCamera* camera() const { return m_camera.node; }
    /** True when the order of the graph matters beyond single places, so that a change needs a walk from scratch. */
    bool isOrdered() const { return m_hasCallbacks || m_numCameras > 1; }
    /** True when a place may look different because of what stands behind it. */
    bool looksAhead() const { return m_looksAhead; }
    /** How many nodes the last walk came to. */
    int numVisits() const { return m_numVisits; }
    /** True when something has its size or form from the camera. */
    bool usesView() const { return m_usesView; }
    bool hasBackground() const { return m_backgroundScope != nullptr; }
    /** True when some node chose how transparent shapes are drawn. */
    bool hasOwnTransparency() const { return m_hasOwnTransparency; }

    void visitShape(SoShape& shape) override;
    void visitCamera(const SoCamera& camera) override;

protected:
    void beginTraversal() override;
    void endTraversal() override;
    void visitNode(SoNode& node) override;

private:
    // A scope that is being walked.
    struct Frame {
        SceneScope* scope;
        SceneScope::Dirt dirt;
        std::size_t depth;
        std::vector<std::unique_ptr<SceneScope>> oldScopes;
        std::vector<std::uint32_t> oldShapes;
        std::size_t nextScope = 0;
        std::size_t nextShape = 0;

        bool isCompared() const { return dirt == SceneScope::Dirt::Own || dirt == SceneScope::Dirt::Deep; }
    };
    struct Camera {
        SoCamera* node = nullptr;
        const SceneScope* scope = nullptr;
        SbUniqueId scopeId = 0;
        SbMatrix model;
        SbViewVolume volume;
        SbVec2s pixels;
    };

    void visitScope(SoNode& node);
    std::unique_ptr<SceneScope> takeOldScope(Frame& frame, SoNode& node);
    SceneScope* nextScope(SoNode& node);
    void walkScope(SoNode& node, SceneScope& scope);
    void finishScope();
    bool isAlive(const SceneScope* scope, SbUniqueId id) const;
    void addCallback(SoCallback& callback);
    void addBackground(const SoBackground& background);
    DrawList::Segment segmentFor(const SoStateValues& values);

    SceneTree& m_tree;
    ShapeCache m_shapes;
    TextureCache m_textures;
    const ChangeStamps& m_stamps;
    std::uint64_t m_walkedStamp = 0; ///< the newest one before the changes that the present walk takes over
    SurroundingsCache m_surroundings;
    std::vector<Frame> m_frames;
    Camera m_camera;
    const SceneScope* m_backgroundScope = nullptr;
    SbUniqueId m_backgroundScopeId = 0;
    std::vector<DrawList::Segment> m_segments;
    std::unordered_map<const SoCamera*, DrawList::Segment> m_cameraSegments;
    DrawList::Segment m_sceneSegment = DrawList::End;
    DrawList::Segment m_annotationSegment = DrawList::End;
    int m_numCameras = 0;
    int m_numVisits = 0;
    bool m_hasCallbacks = false;
    bool m_hasOwnTransparency = false;
    bool m_usesView = false;
    bool m_looksAhead = false;
    bool m_isConsistent = true;
    bool m_isFirstWalk = true;
    bool m_wasTooLarge = false;
};

} // namespace vexel
