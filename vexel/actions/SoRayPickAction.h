#pragma once

#include <memory>
#include <vector>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbVec2s.h>

class SoPickedPoint;

namespace vexel {
class CompiledScene;
class PickQuery;
} // namespace vexel

/**
 * Finds what stands at a place of the picture, or what a ray meets: what is below annotations first, as it is drawn in
 * front, and each time the nearest first.
 */
class VEXEL_API SoRayPickAction : public SoAction {
    SO_ACTION(SoRayPickAction, SoAction)
public:
    /** @param region  where the picture is that points belong to */
    explicit SoRayPickAction(const SbViewportRegion& region);
    ~SoRayPickAction() override;

    void setViewportRegion(const SbViewportRegion& region) { state().setViewportRegion(region); }
    const SbViewportRegion& getViewportRegion() const { return state().getViewportRegion(); }

    /** Picks in pixels from the lower left corner of the viewport, through the camera of the graph. */
    void setPoint(const SbVec2s& point);
    /** The same from 0 to 1 across the viewport. */
    void setNormalizedPoint(const SbVec2f& point);
    /** Picks along a ray in world space, between two distances; a negative one is no limit. */
    void setRay(const SbVec3f& origin, const SbVec3f& direction, float nearest = -1, float farthest = -1);
    /** How near to the point lines and points are met, in pixels; with a ray, in the world's units. 5 at first. */
    void setRadius(float radius) { m_radius = radius; }
    float getRadius() const { return m_radius; }

    /** Whether all that is met is found, not only the nearest. */
    void setPickAll(bool on) { m_picksAll = on; }
    bool isPickAll() const { return m_picksAll; }

    /** Null beyond the last one. Points are valid until the action is applied again. */
    SoPickedPoint* getPickedPoint(int index = 0) const;
    const std::vector<std::unique_ptr<SoPickedPoint>>& getPickedPointList() const { return m_points; }

protected:
    void beginTraversal() override;
    void visitNode(SoNode& root) override;

private:
    enum class Aim { Pixel, Viewport, Ray };

    vexel::PickQuery queryFor(const vexel::CompiledScene& scene) const;
    void pick(vexel::CompiledScene& scene);

    std::vector<std::unique_ptr<SoPickedPoint>> m_points;
    SbVec2f m_point;
    SbVec3f m_origin;
    SbVec3f m_direction;
    float m_nearest = 0;
    float m_farthest = 0;
    float m_radius = 5;
    Aim m_aim = Aim::Pixel;
    bool m_picksAll = false;
};
