#pragma once

#include <memory>

#include <vexel/actions/detail/ChangeStamps.h>
#include <vexel/actions/detail/SceneCompiler.h>
#include <vexel/actions/detail/SceneTree.h>
#include <vexel/sensors/SoNodeSensor.h>

namespace vexel {

/**
 * What a graph looks like, ready for drawing and picking. Changes of the graph are noted as they happen, and taken over
 * by the next update(). Neither the graph nor nodes taken out of it are held.
 */
class VEXEL_API CompiledScene {
public:
    /** The scene of a graph, shared by all actions; kept until the root is gone or many others were asked for. */
    static std::shared_ptr<CompiledScene> of(SoNode& root);

    explicit CompiledScene(SoNode& root);
    /** Only what the path leads to. Such a scene is good for one update. */
    explicit CompiledScene(SoPath& path);
    ~CompiledScene();
    CompiledScene(const CompiledScene&) = delete;
    CompiledScene& operator=(const CompiledScene&) = delete;

    void update(const SbViewportRegion& region);

    SceneTree& tree() { return m_tree; }
    SceneCompiler& compiler() { return m_compiler; }
    const SceneCompiler& compiler() const { return m_compiler; }
    /** The first camera's view of the viewport, as of the last update. */
    RenderView view() const;

private:
    static void changed(void* self, SoSensor* sensor);
    static void rootDied(void* self, SoSensor* sensor);
    void note();
    void markDirty(SoNode& node, SceneScope::Dirt dirt);
    void markViewScopes();
    void walk();

    ChangeStamps m_stamps;
    SceneTree m_tree;
    SceneCompiler m_compiler;
    SoNodeSensor m_sensor;
    SoNode* m_root;
    SoPath* m_path = nullptr;
    SbViewportRegion m_region;
    SbMatrix m_viewMatrix;
    SbVec2s m_viewPixels;
    bool m_isStale = true; ///< nothing of it can be kept
    bool m_isDirty = true;
    bool m_lightsChanged = false;
};

} // namespace vexel
