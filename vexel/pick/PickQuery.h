#pragma once

#include <limits>

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/VexelApi.h>
#include <vexel/render/detail/Bounds.h>

namespace vexel {

struct RenderView;

/** What to look for: a ray for surfaces, and for lines and points a circle on the screen around the place where the ray
    leaves the eye. */
class VEXEL_API PickQuery {
public:
    /** Through a pixel of a view, from its near to its far plane. `x` and `y` count pixels from the lower left corner
       of the target; 0.5 is the middle of the first one. Lines and points are hit within `radius` pixels. */
    static PickQuery atPixel(const RenderView& view, float x, float y, float radius);

    /** Along a ray in world space. Lines and points are hit within `radius` in world units. */
    static PickQuery alongRay(const SbVec3f& origin, const SbVec3f& direction, float radius, float nearest = 0,
                              float farthest = std::numeric_limits<float>::max());

    /** False when the view or ray has no direction; such a query hits nothing. */
    bool isValid() const { return m_valid; }

    const SbVec3f& origin() const { return m_origin; }
    const SbVec3f& direction() const { return m_direction; } ///< unit length
    float nearest() const { return m_nearest; }
    float farthest() const { return m_farthest; }

    /** Maps the world to a clip space in which the circle is the one of radius 1 around the middle; the depth of things
        in the box is kept as well as possible. */
    SbMatrix circleMatrix(const Bounds& box) const;
    /** A number of pixels in that space; 0 for a ray, which knows of none. */
    float pixels(float count) const { return m_isPixel ? count / m_radius : 0; }
    /** How far from the middle, in that space, something drawn with that size may be and still be hit. */
    float reach(float pixelSize) const;

private:
    bool m_valid = false;
    SbVec3f m_origin;
    SbVec3f m_direction;
    float m_nearest = 0;
    float m_farthest = 0;
    bool m_isPixel = false;
    SbMatrix m_circle; // for rays without depth
    float m_radius = 0;
};

} // namespace vexel
