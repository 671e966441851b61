#include <vexel/actions/detail/SceneTree.h>

#include <algorithm>

#include <vexel/actions/detail/BoxGeometry.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>

namespace vexel {

SceneTree::SceneTree() = default;

SceneTree::~SceneTree() = default;

void SceneTree::clear()
{
    if (m_root)
        dispose(std::move(m_root));
}

std::unique_ptr<SceneScope> SceneTree::makeScope(SoNode& node, SceneScope* parent)
{
    auto scope = std::make_unique<SceneScope>();
    scope->node = &node;
    scope->id = node.getNodeId();
    scope->parent = parent;
    SceneScope*& first = m_places[scope->id];
    scope->nextTwin = first;
    if (first)
        first->previousTwin = scope.get();
    first = scope.get();
    return scope;
}

SceneScope* SceneTree::firstPlace(SbUniqueId node) const
{
    const auto found = m_places.find(node);
    return found == m_places.end() ? nullptr : found->second;
}

void SceneTree::dispose(std::unique_ptr<SceneScope> scope)
{
    // Not recursive: graphs may be deeper than the stack.
    std::vector<std::unique_ptr<SceneScope>> open;
    open.push_back(std::move(scope));
    while (!open.empty()) {
        const std::unique_ptr<SceneScope> gone = std::move(open.back());
        open.pop_back();
        for (const std::uint32_t shape : gone->shapes)
            removeShape(shape);
        if (gone->nextTwin)
            gone->nextTwin->previousTwin = gone->previousTwin;
        if (gone->previousTwin)
            gone->previousTwin->nextTwin = gone->nextTwin;
        else if (gone->nextTwin)
            m_places[gone->id] = gone->nextTwin;
        else
            m_places.erase(gone->id);
        for (std::unique_ptr<SceneScope>& below : gone->scopes)
            open.push_back(std::move(below));
    }
}

std::uint32_t SceneTree::addShape()
{
    if (m_free.empty()) {
        m_shapes.emplace_back();
        return static_cast<std::uint32_t>(m_shapes.size() - 1);
    }
    const std::uint32_t index = m_free.back();
    m_free.pop_back();
    return index;
}

void SceneTree::removeShape(std::uint32_t index)
{
    SceneShape& shape = m_shapes[index];
    for (const std::uint32_t packet : shape.packets) {
        if (packet != SceneShape::None)
            m_list.remove(packet);
    }
    removeItems(shape);
    shape = SceneShape();
    m_free.push_back(index);
}

void SceneTree::place(std::uint32_t index, const RenderState& state, DrawList::Segment segment)
{
    SceneShape& shape = m_shapes[index];
    for (std::size_t kind = 0; kind < CompiledShape::NumKinds; ++kind) {
        std::uint32_t& packet = shape.packets[kind];
        const auto& geometry = shape.shape->geometries[kind];
        if (packet != SceneShape::None && (!geometry || segment != shape.segment)) {
            m_list.remove(packet);
            packet = SceneShape::None;
        }
        if (!geometry)
            continue;
        if (packet == SceneShape::None) {
            packet = m_list.add(segment, {geometry, state, shape.material, shape.matrix, index});
            continue;
        }
        m_list.setGeometry(packet, geometry);
        m_list.setState(packet, state);
        m_list.setMaterial(packet, shape.material);
        m_list.setMatrix(packet, shape.matrix);
    }
    shape.segment = segment;
    if (m_pickScene)
        updateItems(shape, index);
}

void SceneTree::removeItems(SceneShape& shape)
{
    for (std::uint32_t& item : shape.items) {
        if (item != SceneShape::None)
            m_pickScene->remove(item);
        item = SceneShape::None;
    }
}

void SceneTree::updateItems(SceneShape& shape, std::uint32_t index)
{
    for (std::size_t kind = 0; kind < CompiledShape::NumKinds; ++kind) {
        std::shared_ptr<const RenderGeometry> geometry = shape.shape->geometries[kind];
        std::uint32_t& item = shape.items[kind];
        if (shape.picking == SceneShape::Picking::Never)
            geometry = nullptr;
        else if (shape.picking == SceneShape::Picking::Box && geometry)
            geometry = boxGeometry(geometry->bounds());
        if (item != SceneShape::None) {
            const PickItem& present = m_pickScene->item(item);
            if (geometry && present.surroundings == shape.surroundings && present.pixelSize == shape.pixelSize &&
                present.inFront == shape.isInFront) {
                if (present.geometry != geometry)
                    m_pickScene->setGeometry(item, geometry);
                if (present.matrix != shape.matrix)
                    m_pickScene->setMatrix(item, shape.matrix);
                continue;
            }
            m_pickScene->remove(item);
            item = SceneShape::None;
        }
        if (geometry)
            item =
                m_pickScene->add({geometry, shape.matrix, shape.surroundings, shape.pixelSize, shape.isInFront, index});
    }
}

PickScene& SceneTree::pickScene()
{
    if (!m_pickScene) {
        m_pickScene = std::make_unique<PickScene>();
        forEachShape([this](std::uint32_t index, const SceneShape&) { updateItems(m_shapes[index], index); });
    }
    return *m_pickScene;
}

std::vector<SceneStep> SceneTree::fullWay(const SceneShape& shape) const
{
    std::vector<const std::vector<SceneStep>*> parts{&shape.way};
    for (const SceneScope* scope = shape.scope; scope; scope = scope->parent)
        parts.push_back(&scope->way);
    std::vector<SceneStep> result;
    for (auto part = parts.rbegin(); part != parts.rend(); ++part)
        result.insert(result.end(), (*part)->begin(), (*part)->end());
    return result;
}

SoPath* SceneTree::pathOf(std::uint32_t shape) const
{
    auto* path = new SoPath;
    for (const SceneStep& step : fullWay(m_shapes[shape])) {
        if (step.index < 0)
            path->append(step.node);
        else
            path->append(step.index);
    }
    return path;
}

bool SceneTree::isReachedAlong(const SoPath& path, const SceneShape& shape) const
{
    const int length = path.getFullLength();
    const std::vector<SceneStep> way = fullWay(shape);
    const auto first =
        std::find_if(way.begin(), way.end(), [&](const SceneStep& step) { return step.node == path.getHead(); });
    if (way.end() - first < length)
        return false;
    for (int i = 1; i < length; ++i) {
        const SceneStep& step = *(first + i);
        if (step.node != path.getNode(i) || step.index != path.getIndex(i))
            return false;
    }
    return true;
}

// The places of the last node of the path that has any: all that the path leads to is below them.
std::vector<const SceneScope*> SceneTree::scopesAlong(const SoPath& path) const
{
    std::vector<const SceneScope*> scopes;
    for (int i = path.getFullLength() - 1; i >= 0 && scopes.empty(); --i) {
        for (const SceneScope* place = firstPlace(path.getNode(i)->getNodeId()); place; place = place->nextTwin)
            scopes.push_back(place);
        // A separator without a place is not shown.
        if (scopes.empty() && path.getNode(i)->isOfType(SoSeparator::getClassTypeId()))
            return scopes;
    }
    if (scopes.empty() && m_root)
        scopes.push_back(m_root.get());
    return scopes;
}

std::vector<DrawList::Packet> SceneTree::packetsBelow(const SoPath& path) const
{
    std::vector<DrawList::Packet> packets;
    if (path.getFullLength() == 0)
        return packets;
    std::vector<const SceneScope*> open = scopesAlong(path);
    while (!open.empty()) {
        const SceneScope* scope = open.back();
        open.pop_back();
        for (const std::unique_ptr<SceneScope>& below : scope->scopes)
            open.push_back(below.get());
        for (const std::uint32_t number : scope->shapes) {
            const SceneShape& shape = m_shapes[number];
            if (!isReachedAlong(path, shape))
                continue;
            for (const std::uint32_t packet : shape.packets) {
                if (packet != SceneShape::None)
                    packets.push_back(packet);
            }
        }
    }
    return packets;
}

} // namespace vexel
