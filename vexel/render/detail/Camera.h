#pragma once

#include <vexel/render/RenderView.h>
#include <vexel/render/detail/Bounds.h>

namespace vexel {

/** What the shaders and the culling need of a view; also the memory image of the shaders' uniform block. */
struct Camera {
    float viewProjection[16]; ///< of places relative to the origin
    float view[16];           ///< the same
    float origin[4];          ///< place of the camera in the world
    float eye[4]; ///< place relative to the origin (fourth 1), or unit direction towards the viewer (fourth 0)
    float viewport[4];
    float worldToClip[16]; ///< for culling; not known to the shaders

    explicit Camera(const RenderView& view);

    bool operator==(const Camera& other) const;

    /** Moves everything towards the viewer by a hair, for lines that lie on surfaces. */
    void bringForward();

    /** Grows with the distance of the box's centre from the viewer. */
    float distanceOf(const Bounds& bounds) const;
};

} // namespace vexel
