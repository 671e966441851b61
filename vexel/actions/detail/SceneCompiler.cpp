#include <algorithm>
#include <vexel/actions/detail/SceneCompiler.h>

#include <vexel/actions/detail/StateTranslation.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoGradientBackground.h>
#include <vexel/nodes/SoImageBackground.h>
#include <vexel/nodes/SoLOD.h>
#include <vexel/nodes/SoLevelOfDetail.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/SoSurroundScale.h>
#include <vexel/render/RenderSurroundings.h>

namespace vexel {

namespace {

// Graphs that share parts at many levels can stand for more places than there is memory for.
constexpr int MostVisits = 20'000'000;

using Dirt = SceneScope::Dirt;

} // namespace

SceneCompiler::SceneCompiler(SceneTree& tree, const ChangeStamps& stamps)
    : m_tree(tree), m_shapes(stamps), m_textures(stamps), m_stamps(stamps)
{
}

SceneCompiler::~SceneCompiler() = default;

void SceneCompiler::reset()
{
    m_tree.clear();
    for (const DrawList::Segment segment : m_segments)
        m_tree.drawList().removeSegment(segment);
    m_segments.clear();
    m_cameraSegments.clear();
    m_sceneSegment = DrawList::End;
    m_annotationSegment = DrawList::End;
    m_camera = Camera();
    m_backgroundScope = nullptr;
    m_numCameras = 0;
    m_hasCallbacks = m_hasOwnTransparency = m_usesView = m_looksAhead = false;
    m_isConsistent = true;
    m_isFirstWalk = true;
}

void SceneCompiler::beginTraversal()
{
    m_frames.clear();
    m_numVisits = 0;
}

bool SceneCompiler::isAlive(const SceneScope* scope, SbUniqueId id) const
{
    const SceneScope* place = m_tree.firstPlace(id);
    while (place && place != scope)
        place = place->nextTwin;
    return place != nullptr;
}

void SceneCompiler::endTraversal()
{
    m_isFirstWalk = false;
    m_walkedStamp = m_stamps.last();
    if ((m_camera.node && !isAlive(m_camera.scope, m_camera.scopeId)) ||
        (m_backgroundScope && !isAlive(m_backgroundScope, m_backgroundScopeId)))
        m_isConsistent = false;
}

void SceneCompiler::refreshView()
{
    if (!m_camera.node)
        return;
    const SbViewportRegion region = state().getViewportRegion();
    state() = SoState();
    state().setViewportRegion(region);
    state()->model = m_camera.model;
    m_camera.node->doAction(*this);
}

void SceneCompiler::visitNode(SoNode& node)
{
    if (++m_numVisits > MostVisits) {
        if (!m_wasTooLarge)
            SoDebugError::post("SoGLRenderAction::apply",
                               "the graph stands for more than %d nodes, as parts of it are shared again and again; "
                               "only the first ones are shown",
                               MostVisits);
        m_wasTooLarge = true;
        setTerminated(true);
        return;
    }
    if (m_frames.empty() || node.isOfType(SoSeparator::getClassTypeId())) {
        visitScope(node);
        return;
    }
    // A changed property is one for what stands behind it only.
    if (m_stamps.of(node.getNodeId()) > m_walkedStamp && m_frames.back().dirt == Dirt::Own && node.affectsState())
        m_frames.back().dirt = Dirt::Deep;
    if (node.isOfType(SoCallback::getClassTypeId())) {
        addCallback(static_cast<SoCallback&>(node));
        return;
    }
    if (node.isOfType(SoBackground::getClassTypeId())) {
        addBackground(static_cast<SoBackground&>(node));
        return;
    }
    if (node.isOfType(SoLOD::getClassTypeId()) || node.isOfType(SoLevelOfDetail::getClassTypeId()))
        m_usesView = m_frames.back().scope->usesView = true;
    m_looksAhead = m_looksAhead || node.isOfType(SoSurroundScale::getClassTypeId());
    SoAction::visitNode(node);
}

// A place that is not surely the same one takes all of its contents anew, so any place of the separator will do.
std::unique_ptr<SceneScope> SceneCompiler::takeOldScope(Frame& frame, SoNode& node)
{
    auto& old = frame.oldScopes;
    while (frame.nextScope < old.size() && !old[frame.nextScope])
        ++frame.nextScope;
    if (frame.nextScope < old.size() && old[frame.nextScope]->id == node.getNodeId())
        return std::move(old[frame.nextScope++]);
    constexpr int MostTried = 16;
    SceneScope* place = m_tree.firstPlace(node.getNodeId());
    for (int i = 0; place && i < MostTried; place = place->nextTwin, ++i) {
        const bool isHere = place->parent == frame.scope && place->position < old.size();
        if (isHere && old[place->position].get() == place)
            return std::move(old[place->position]);
    }
    return nullptr;
}

SceneScope* SceneCompiler::nextScope(SoNode& node)
{
    if (m_frames.empty()) {
        if (!m_tree.root()) {
            m_tree.setRoot(m_tree.makeScope(node, nullptr));
            m_tree.root()->dirt = Dirt::Deep;
        }
        return m_tree.root();
    }
    Frame& frame = m_frames.back();
    SceneScope& above = *frame.scope;
    if (!frame.isCompared()) {
        const bool isSame =
            frame.nextScope < above.scopes.size() && above.scopes[frame.nextScope]->id == node.getNodeId();
        return isSame ? above.scopes[frame.nextScope++].get() : nullptr;
    }
    std::unique_ptr<SceneScope> scope = takeOldScope(frame, node);
    if (!scope) {
        scope = m_tree.makeScope(node, &above);
        scope->dirt = Dirt::Deep;
    }
    const bool hasTwins = scope->nextTwin || scope->previousTwin;
    if (frame.dirt == Dirt::Deep || hasTwins)
        scope->dirt = Dirt::Deep;
    scope->position = static_cast<std::uint32_t>(above.scopes.size());
    above.scopes.push_back(std::move(scope));
    return above.scopes.back().get();
}

void SceneCompiler::visitScope(SoNode& node)
{
    SceneScope* scope = nextScope(node);
    if (!scope) {
        m_isConsistent = false;
        setTerminated(true);
        return;
    }
    scope->node = &node;
    const std::size_t depth = m_frames.empty() ? 0 : m_frames.back().depth;
    scope->way.clear();
    for (std::size_t i = depth; i < way().size(); ++i)
        scope->way.push_back({way()[i].node, way()[i].index});
    if (scope->dirt != Dirt::None)
        walkScope(node, *scope);
}

void SceneCompiler::walkScope(SoNode& node, SceneScope& scope)
{
    m_frames.push_back({&scope, scope.dirt, way().size(), {}, {}});
    scope.dirt = Dirt::None;
    Frame& frame = m_frames.back();
    if (frame.isCompared()) {
        frame.oldScopes.swap(scope.scopes);
        frame.oldShapes.swap(scope.shapes);
        scope.usesView = false;
        if (m_camera.scope == &scope)
            m_camera = Camera();
        if (m_backgroundScope == &scope)
            m_backgroundScope = nullptr;
    }
    SoAction::visitNode(node);
    finishScope();
}

void SceneCompiler::finishScope()
{
    Frame frame = std::move(m_frames.back());
    m_frames.pop_back();
    if (!frame.isCompared()) {
        if (!hasTerminated() && frame.nextScope != frame.scope->scopes.size())
            m_isConsistent = false;
        return;
    }
    for (std::unique_ptr<SceneScope>& gone : frame.oldScopes) {
        if (gone)
            m_tree.dispose(std::move(gone));
    }
    for (std::size_t i = frame.nextShape; i < frame.oldShapes.size(); ++i)
        m_tree.removeShape(frame.oldShapes[i]);
}

void SceneCompiler::visitShape(SoShape& node)
{
    Frame& frame = m_frames.back();
    if (!frame.isCompared())
        return;
    SceneScope& scope = *frame.scope;
    const bool isNew = frame.nextShape == frame.oldShapes.size();
    const std::uint32_t index = isNew ? m_tree.addShape() : frame.oldShapes[frame.nextShape++];
    scope.shapes.push_back(index);

    const SoStateValues& values = *state();
    if (dependsOnView(node, values))
        m_usesView = scope.usesView = true;
    m_hasOwnTransparency = m_hasOwnTransparency || values.transparencyType >= 0;

    SceneShape& shape = m_tree.shape(index);
    shape.node = &node;
    shape.scope = &scope;
    shape.way.clear();
    for (std::size_t i = frame.depth; i < way().size(); ++i)
        shape.way.push_back({way()[i].node, way()[i].index});
    shape.shape = m_shapes.get(node, state());
    shape.matrix = values.model;
    shape.material = materialOf(values);
    shape.surroundings = m_surroundings.get(state());
    shape.pixelSize = std::max({1.0f, values.lineWidth, values.pointSize, shape.shape->signSize});
    shape.isInFront = values.isAnnotation;
    shape.picking = static_cast<SceneShape::Picking>(std::clamp(values.pickStyle, 0, int(SceneShape::Picking::Never)));
    RenderState renderState;
    renderState.style = styleOf(values, node);
    renderState.textures = m_textures.get(state());
    renderState.surroundings = shape.surroundings;
    m_tree.place(index, renderState, segmentFor(values));
}

void SceneCompiler::visitCamera(const SoCamera& camera)
{
    auto* node = const_cast<SoCamera*>(&camera);
    if (m_camera.node && m_camera.node != node) {
        m_isConsistent = m_isConsistent && m_isFirstWalk;
        ++m_numCameras;
        return;
    }
    if (!m_camera.node) {
        m_camera.node = node;
        m_camera.scope = m_frames.back().scope;
        m_camera.scopeId = m_camera.scope->id;
        m_camera.model = state()->model;
        m_numCameras = std::max(m_numCameras, 1);
    } else if (!m_frames.empty()) {
        m_camera.model = state()->model;
    }
    m_camera.volume = state()->viewVolume;
    m_camera.pixels = state().getViewPixels();
}

void SceneCompiler::addCallback(SoCallback& callback)
{
    m_isConsistent = m_isConsistent && m_isFirstWalk;
    m_hasCallbacks = true;
    RenderSegment segment;
    segment.kind = RenderSegment::Kind::Callback;
    segment.callback = [this, node = &callback](const RenderView&) {
        if (callCallback)
            callCallback(*node);
    };
    m_segments.push_back(m_tree.drawList().addSegment(std::move(segment)));
    // What follows is drawn behind the callback.
    m_sceneSegment = DrawList::End;
}

void SceneCompiler::addBackground(const SoBackground& background)
{
    if (!m_frames.back().isCompared())
        return;
    RenderBackground result;
    if (background.isOfType(SoGradientBackground::getClassTypeId()))
        result = backgroundOf(static_cast<const SoGradientBackground&>(background));
    else if (background.isOfType(SoImageBackground::getClassTypeId()))
        result = backgroundOf(static_cast<const SoImageBackground&>(background), m_textures.imageOf(background));
    else
        return;
    m_backgroundScope = m_frames.back().scope;
    m_backgroundScopeId = m_backgroundScope->id;
    m_tree.drawList().background = std::move(result);
}

DrawList::Segment SceneCompiler::segmentFor(const SoStateValues& values)
{
    const bool isSecondView = values.camera && values.camera != m_camera.node && !values.isAnnotation;
    DrawList::Segment& segment = values.isAnnotation ? m_annotationSegment
                                 : isSecondView
                                     ? m_cameraSegments.try_emplace(values.camera, DrawList::End).first->second
                                     : m_sceneSegment;
    if (segment == DrawList::End) {
        RenderSegment description;
        description.kind = values.isAnnotation ? RenderSegment::Kind::Annotation : RenderSegment::Kind::Scene;
        if (isSecondView) {
            description.view.emplace();
            values.viewVolume.getMatrices(description.view->view, description.view->projection);
            description.view->viewport = viewportOf(values.camera->getViewportBounds(state().getViewportRegion()));
        }
        segment = m_tree.drawList().addSegment(std::move(description));
        m_segments.push_back(segment);
    }
    return segment;
}

} // namespace vexel
