#pragma once

#include <vexel/render/RenderView.h>
#include <vexel/render/detail/Bounds.h>

namespace vexel {

/** What the shaders and the culling need of a view; also the memory image of the shaders' uniform block. */
struct Camera {
    float viewProjection[16];
    float view[16];
    float eye[4]; ///< place (fourth 1), or unit direction towards the viewer (fourth 0)
    float viewport[4];

    explicit Camera(const RenderView& view);

    bool operator==(const Camera& other) const;

    /** Moves everything towards the viewer by a hair, for lines that lie on surfaces. */
    void bringForward();

    /** Grows with the distance of the box's centre from the viewer. */
    float distanceOf(const Bounds& bounds) const;
};

} // namespace vexel
