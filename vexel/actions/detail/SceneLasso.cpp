#include <vexel/actions/detail/SceneLasso.h>

#include <algorithm>
#include <cmath>
#include <unordered_set>

#include <vexel/actions/detail/BoxGeometry.h>
#include <vexel/actions/detail/CompiledScene.h>
#include <vexel/actions/detail/StateTranslation.h>
#include <vexel/base/SbVec4f.h>
#include <vexel/base/SoPath.h>
#include <vexel/base/SoPathList.h>
#include <vexel/pick/PickQuery.h>

namespace vexel {

namespace {

using Outline = std::vector<SbVec2f>;

float turn(const SbVec2f& a, const SbVec2f& b, const SbVec2f& c)
{
    return (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0]);
}

bool isCrossing(const SbVec2f& a, const SbVec2f& b, const SbVec2f& c, const SbVec2f& d)
{
    return (turn(a, b, c) > 0) != (turn(a, b, d) > 0) && (turn(c, d, a) > 0) != (turn(c, d, b) > 0);
}

/** Calls @p visit(from, to) for each side; stops when it answers true, and answers that. */
template <class Visit>
bool anySide(const Outline& outline, Visit&& visit)
{
    for (std::size_t i = 0; i < outline.size(); ++i) {
        if (visit(outline[i], outline[(i + 1) % outline.size()]))
            return true;
    }
    return false;
}

bool isInside(const Outline& outline, const SbVec2f& point)
{
    bool inside = false;
    anySide(outline, [&](const SbVec2f& a, const SbVec2f& b) {
        if ((a[1] > point[1]) != (b[1] > point[1]) &&
            point[0] < a[0] + (point[1] - a[1]) / (b[1] - a[1]) * (b[0] - a[0]))
            inside = !inside;
        return false;
    });
    return inside;
}

bool isCrossed(const Outline& outline, const SbVec2f& from, const SbVec2f& to)
{
    return anySide(outline, [&](const SbVec2f& a, const SbVec2f& b) { return isCrossing(from, to, a, b); });
}

std::size_t cornersOf(RenderPrimitive primitive)
{
    return primitive == RenderPrimitive::Triangles ? 3 : primitive == RenderPrimitive::Lines ? 2 : 1;
}

/** A geometry as it is seen, in pixels. */
class SeenGeometry {
public:
    SeenGeometry(const RenderGeometry& geometry, const SbMatrix& toClip, const RenderViewport& viewport)
        : m_geometry(geometry)
    {
        for (const SbVec3f& point : geometry.arrays().positions) {
            SbVec4f clip;
            toClip.multVecMatrix(SbVec4f(point[0], point[1], point[2], 1), clip);
            // What is behind the viewer is nowhere.
            const bool isSeen = clip[3] > 0;
            m_places.push_back(isSeen ? SbVec2f((clip[0] / clip[3] + 1) / 2 * float(viewport.width),
                                                (clip[1] / clip[3] + 1) / 2 * float(viewport.height))
                                      : SbVec2f(NAN, NAN));
        }
    }

    bool isWholeIn(const Outline& outline) const
    {
        return !anyPrimitive([&](const std::vector<SbVec2f>& corners) {
            return anySide(corners, [&](const SbVec2f& a, const SbVec2f& b) {
                return !isInside(outline, a) || isCrossed(outline, a, b);
            });
        });
    }

    bool isPartIn(const Outline& outline) const
    {
        return anyPrimitive([&](const std::vector<SbVec2f>& corners) {
            return (corners.size() == 3 && isInside(corners, outline[0])) ||
                   anySide(corners, [&](const SbVec2f& a, const SbVec2f& b) {
                       return isInside(outline, a) || isCrossed(outline, a, b);
                   });
        });
    }

private:
    template <class Visit>
    bool anyPrimitive(Visit&& visit) const
    {
        std::vector<SbVec2f> corners(cornersOf(m_geometry.primitive()));
        for (std::size_t primitive = 0; primitive < m_geometry.primitiveCount(); ++primitive) {
            const std::uint32_t* vertices = m_geometry.primitiveVertices(primitive);
            for (std::size_t i = 0; i < corners.size(); ++i)
                corners[i] = m_places[vertices[i]];
            if (visit(corners))
                return true;
        }
        return false;
    }

    const RenderGeometry& m_geometry;
    std::vector<SbVec2f> m_places;
};

/** Numbers of the shapes that stand in front at some place inside. */
std::unordered_set<std::uint32_t> seenIn(CompiledScene& scene, const RenderView& view, const Outline& outline)
{
    // Looked at in steps; what shows less than that of itself is hardly seen.
    constexpr float Step = 2;
    SbVec2f low = outline[0];
    SbVec2f high = outline[0];
    for (const SbVec2f& corner : outline) {
        for (int axis = 0; axis < 2; ++axis) {
            low[axis] = std::min(low[axis], corner[axis]);
            high[axis] = std::max(high[axis], corner[axis]);
        }
    }
    std::unordered_set<std::uint32_t> seen;
    for (float y = std::max(low[1], 0.0f) + 0.5f; y < std::min(high[1], float(view.viewport.height)); y += Step) {
        for (float x = std::max(low[0], 0.0f) + 0.5f; x < std::min(high[0], float(view.viewport.width)); x += Step) {
            if (!isInside(outline, SbVec2f(x, y)))
                continue;
            const PickQuery query = PickQuery::atPixel(view, x + float(view.viewport.x), y + float(view.viewport.y), 1);
            if (const std::optional<PickHit> hit = scene.tree().pickScene().closest(query))
                seen.insert(static_cast<std::uint32_t>(hit->tag));
        }
    }
    return seen;
}

} // namespace

void SceneLasso::find(SoNode& root, const SbViewportRegion& region, const SoNode& below, SoPathList& found) const
{
    if (outline.empty())
        return;
    const std::shared_ptr<CompiledScene> scene = CompiledScene::of(root);
    scene->update(region);
    const RenderView view = scene->view();
    const SbMatrix toClip = view.view * view.projection;
    const RenderViewport whole = viewportOf(region);
    Outline inView = outline;
    for (SbVec2f& corner : inView)
        corner += SbVec2f(float(whole.x - view.viewport.x), float(whole.y - view.viewport.y));
    std::unordered_set<std::uint32_t> seen;
    if (onlyVisible)
        seen = seenIn(*scene, view, inView);

    const auto isChosen = [&](const SceneShape& shape) {
        bool isAny = false;
        for (const auto& geometry : shape.shape->geometries) {
            const auto tested = geometry && byBox ? boxGeometry(geometry->bounds()) : geometry;
            if (!tested || tested->primitiveCount() == 0)
                continue;
            const SeenGeometry places(*tested, shape.matrix * toClip, view.viewport);
            const bool isIn = wantsWhole ? places.isWholeIn(inView) : places.isPartIn(inView);
            if (isIn != wantsWhole)
                return isIn;
            isAny = true;
        }
        return isAny && wantsWhole;
    };
    scene->tree().forEachShape([&](std::uint32_t number, const SceneShape& shape) {
        if (shape.picking == SceneShape::Picking::Never || (onlyVisible && seen.count(number) == 0) || !isChosen(shape))
            return;
        SoPath* path = scene->tree().pathOf(number);
        path->ref();
        if (path->containsNode(&below))
            found.append(path);
        path->unref();
    });
}

} // namespace vexel
