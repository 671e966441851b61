#include <vexel/actions/detail/CompiledScene.h>

#include <algorithm>

#include <vexel/actions/detail/SceneMarks.h>
#include <vexel/actions/detail/StateTranslation.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoBackground.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoLight.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>

namespace vexel {

namespace {

using Dirt = SceneScope::Dirt;

std::vector<std::pair<SoNode*, std::shared_ptr<CompiledScene>>>& keptScenes()
{
    // Never destroyed: sensors of scenes may outlive the statics that they need.
    static auto* scenes = new std::vector<std::pair<SoNode*, std::shared_ptr<CompiledScene>>>;
    return *scenes;
}

RenderFrame::Kind frameOf(const SoCamera& camera)
{
    switch (camera.viewportMapping.getValue()) {
    case SoCamera::CROP_VIEWPORT_FILL_FRAME:
        return RenderFrame::Kind::Fill;
    case SoCamera::CROP_VIEWPORT_LINE_FRAME:
        return RenderFrame::Kind::Line;
    default:
        return RenderFrame::Kind::None;
    }
}

} // namespace

std::shared_ptr<CompiledScene> CompiledScene::of(SoNode& root)
{
    constexpr std::size_t MostKept = 8;
    auto& scenes = keptScenes();
    auto found = std::find_if(scenes.begin(), scenes.end(), [&](const auto& scene) { return scene.first == &root; });
    if (found == scenes.end()) {
        if (scenes.size() == MostKept)
            scenes.erase(scenes.begin());
        scenes.emplace_back(&root, std::make_shared<CompiledScene>(root));
        return scenes.back().second;
    }
    // The one asked for last stands at the end.
    std::rotate(found, found + 1, scenes.end());
    return scenes.back().second;
}

CompiledScene::CompiledScene(SoNode& root) : m_compiler(m_tree, m_stamps), m_sensor(&changed, this), m_root(&root)
{
    m_sensor.setPriority(0);
    m_sensor.setDeleteCallback(&rootDied, this);
    m_sensor.attach(&root);
}

CompiledScene::CompiledScene(SoPath& path) : m_compiler(m_tree, m_stamps), m_root(path.getHead()), m_path(&path)
{
    m_path->ref();
}

CompiledScene::~CompiledScene()
{
    if (m_path)
        m_path->unref();
}

void CompiledScene::rootDied(void* self, SoSensor*)
{
    auto& scenes = keptScenes();
    const auto found =
        std::find_if(scenes.begin(), scenes.end(), [&](const auto& scene) { return scene.second.get() == self; });
    static_cast<CompiledScene*>(self)->m_root = nullptr;
    if (found == scenes.end())
        return;
    // Released after the list is in order again; an action may hold it for longer.
    const std::shared_ptr<CompiledScene> gone = found->second;
    scenes.erase(found);
}

void CompiledScene::changed(void* self, SoSensor*)
{
    static_cast<CompiledScene*>(self)->note();
}

void CompiledScene::note()
{
    if (m_isStale)
        return;
    SoNode* node = m_sensor.getTriggerNode();
    if (!node || m_compiler.isOrdered()) {
        m_isStale = true;
        return;
    }
    m_stamps.touch(node->getNodeId());
    const SoField* field = m_sensor.getTriggerField();
    if (field && node->isOfType(SoCamera::getClassTypeId()))
        return; // the view is made anew in every update
    if (field && node->isOfType(SoLight::getClassTypeId()) && field != &static_cast<SoLight*>(node)->on) {
        m_lightsChanged = true;
        return;
    }
    m_lightsChanged = m_lightsChanged || node->isOfType(SoEnvironment::getClassTypeId());
    const bool isList = m_sensor.getTriggerType() == SO_TRIGGER_CHILD_ADDED ||
                        m_sensor.getTriggerType() == SO_TRIGGER_CHILD_INSERTED ||
                        m_sensor.getTriggerType() == SO_TRIGGER_CHILD_REMOVED;
    // Only in plain groups is a child in the same state as before when another one came or went.
    const bool isPlain =
        node->getTypeId() == SoGroup::getClassTypeId() || node->isOfType(SoSeparator::getClassTypeId());
    const bool isAlone = node->isOfType(SoShape::getClassTypeId()) || node->isOfType(SoBackground::getClassTypeId());
    // A field of a property is for the walk to look at, when it comes to the property.
    const bool isOwn = isList ? isPlain && !m_sensor.getTriggerChild()->affectsState()
                              : field && (isAlone || (!m_compiler.looksAhead() && !node->getChildren()));
    markDirty(*node, isOwn ? Dirt::Own : Dirt::Deep);
}

void CompiledScene::markDirty(SoNode& node, Dirt dirt)
{
    m_isDirty = true;
    if (!markPlaces(m_tree, node, dirt, m_stamps))
        m_isStale = true;
}

void CompiledScene::markViewScopes()
{
    std::vector<SceneScope*> open{m_tree.root()};
    while (!open.empty()) {
        SceneScope* scope = open.back();
        open.pop_back();
        if (scope->usesView) {
            markScope(*scope, Dirt::Deep);
            m_isDirty = true;
        }
        for (const std::unique_ptr<SceneScope>& below : scope->scopes)
            open.push_back(below.get());
    }
}

void CompiledScene::walk()
{
    const auto apply = [this] { m_path ? m_compiler.apply(m_path) : m_compiler.apply(m_root); };
    if (m_isStale)
        m_compiler.reset();
    apply();
    if (!m_compiler.isConsistent()) {
        m_compiler.reset();
        apply();
    }
    m_isStale = false;
    m_isDirty = false;
    m_compiler.sweep();
}

void CompiledScene::update(const SbViewportRegion& region)
{
    if (!m_root)
        return;
    const bool isResized = region != m_region;
    m_region = region;
    m_compiler.setViewportRegion(region);
    if (isResized && m_compiler.isOrdered())
        m_isStale = true;
    if (m_isDirty || m_isStale)
        walk();
    if (m_lightsChanged)
        m_compiler.refreshSurroundings();
    m_lightsChanged = false;

    m_compiler.refreshView();
    const SbMatrix matrix = m_compiler.viewVolume().getMatrix();
    const SbVec2s pixels = m_compiler.viewPixels();
    if (m_compiler.usesView() && m_tree.root() && (isResized || matrix != m_viewMatrix || pixels != m_viewPixels)) {
        markViewScopes();
        if (m_isDirty)
            walk();
    }
    m_viewMatrix = matrix;
    m_viewPixels = pixels;
}

RenderView CompiledScene::view() const
{
    RenderView view;
    m_compiler.viewVolume().getMatrices(view.view, view.projection);
    view.viewport = viewportOf(m_region);
    const SoCamera* camera = m_compiler.camera();
    if (camera && camera->isCropping()) {
        view.frame = {frameOf(*camera), view.viewport};
        view.viewport = viewportOf(camera->getViewportBounds(m_region));
    }
    return view;
}

} // namespace vexel
