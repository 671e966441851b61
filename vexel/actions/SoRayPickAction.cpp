#include <vexel/actions/SoRayPickAction.h>

#include <limits>

#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/detail/CompiledScene.h>
#include <vexel/actions/detail/PickedPoints.h>
#include <vexel/actions/detail/StateTranslation.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/pick/PickQuery.h>
#include <vexel/render/RenderView.h>

using namespace vexel;

SoRayPickAction::SoRayPickAction(const SbViewportRegion& region)
{
    state().setViewportRegion(region);
}

SoRayPickAction::~SoRayPickAction() = default;

void SoRayPickAction::setPoint(const SbVec2s& point)
{
    m_aim = Aim::Pixel;
    m_point = SbVec2f(static_cast<float>(point[0]) + 0.5f, static_cast<float>(point[1]) + 0.5f);
}

void SoRayPickAction::setNormalizedPoint(const SbVec2f& point)
{
    m_aim = Aim::Viewport;
    m_point = point;
}

void SoRayPickAction::setRay(const SbVec3f& origin, const SbVec3f& direction, float nearest, float farthest)
{
    m_aim = Aim::Ray;
    m_origin = origin;
    m_direction = direction;
    m_nearest = nearest < 0 ? 0 : nearest;
    m_farthest = farthest < 0 ? std::numeric_limits<float>::max() : farthest;
}

SoPickedPoint* SoRayPickAction::getPickedPoint(int index) const
{
    const bool isInside = index >= 0 && index < static_cast<int>(m_points.size());
    return isInside ? m_points[static_cast<std::size_t>(index)].get() : nullptr;
}

void SoRayPickAction::beginTraversal()
{
    m_points.clear();
}

void SoRayPickAction::visitNode(SoNode& root)
{
    if (SoPath* path = getPathAppliedTo()) {
        CompiledScene scene(*path);
        pick(scene);
    } else {
        pick(*CompiledScene::of(root));
    }
}

PickQuery SoRayPickAction::queryFor(const CompiledScene& scene) const
{
    if (m_aim == Aim::Ray)
        return PickQuery::alongRay(m_origin, m_direction, m_radius, m_nearest, m_farthest);
    const RenderView view = scene.view();
    const RenderViewport whole = viewportOf(getViewportRegion());
    const float scaleX = m_aim == Aim::Viewport ? static_cast<float>(whole.width) : 1;
    const float scaleY = m_aim == Aim::Viewport ? static_cast<float>(whole.height) : 1;
    const float x = static_cast<float>(whole.x) + m_point[0] * scaleX;
    const float y = static_cast<float>(whole.y) + m_point[1] * scaleY;
    // Nothing is seen beside the viewport, or beside the part of it that the view fills.
    if (!view.viewport.contains(x, y))
        return PickQuery();
    return PickQuery::atPixel(view, x, y, m_radius);
}

void SoRayPickAction::pick(CompiledScene& scene)
{
    scene.update(getViewportRegion());
    const PickQuery query = queryFor(scene);
    if (!query.isValid())
        return;
    PickScene& shapes = scene.tree().pickScene();
    if (m_picksAll) {
        for (const PickHit& hit : shapes.all(query))
            m_points.push_back(pickedPoint(scene.tree(), hit));
    } else if (const std::optional<PickHit> hit = shapes.closest(query)) {
        m_points.push_back(pickedPoint(scene.tree(), *hit));
    }
}
