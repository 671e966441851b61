#pragma once

#include <vexel/base/SbRotation.h>
#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec3f.h>

class SbBox3f;
class SbLine;
class SbMatrix;
class SbPlane;

/**
 * The space that a camera sees: a box (orthographic) or a truncated pyramid (perspective).
 *
 * ortho(), perspective() and frustum() place it at the origin, looking along -z with y up; rotateCamera() and
 * translateCamera() move it from there. Screen coordinates are relative to the view: 0 to 1 from the lower left,
 * depth 0 on the near plane and 1 on the far plane. Distances are measured from the eye along the viewing direction.
 */
class VEXEL_API SbViewVolume {
public:
    enum ProjectionType { ORTHOGRAPHIC, PERSPECTIVE };

    /** The box from -1 to 1 in x and y and from 1 to 10 in distance. */
    SbViewVolume() noexcept = default;

    /** The window is given on the near plane; left < right, bottom < top, near < far. */
    void ortho(float left, float right, float bottom, float top, float nearDist, float farDist) noexcept;
    /** `heightAngle` in radians between 0 and pi; `aspectRatio` is width by height; 0 < near < far. */
    void perspective(float heightAngle, float aspectRatio, float nearDist, float farDist) noexcept;
    /** As ortho(), with 0 < near < far. */
    void frustum(float left, float right, float bottom, float top, float nearDist, float farDist) noexcept;

    /** Turns the volume about the eye. */
    void rotateCamera(const SbRotation& rotation) noexcept { m_orientation *= rotation; }
    void translateCamera(const SbVec3f& translation) noexcept { m_position += translation; }

    ProjectionType getProjectionType() const noexcept { return m_type; }
    /** The eye. */
    const SbVec3f& getProjectionPoint() const noexcept { return m_position; }
    /** Unit viewing direction. */
    SbVec3f getProjectionDirection() const noexcept;
    /** Unit direction that is up on the screen. */
    SbVec3f getViewUp() const noexcept;
    float getNearDist() const noexcept { return m_near; }
    float getDepth() const noexcept { return m_far - m_near; }
    /** Size of the view on the near plane. */
    float getWidth() const noexcept { return m_max[0] - m_min[0]; }
    float getHeight() const noexcept { return m_max[1] - m_min[1]; }

    /** `affine` leads from the world to camera space (eye at the origin), `projection` from there to -1 to 1. */
    void getMatrices(SbMatrix& affine, SbMatrix& projection) const noexcept;
    /** Product of the two matrices. */
    SbMatrix getMatrix() const noexcept;
    /** From the world to camera space. */
    SbMatrix getCameraSpaceMatrix() const noexcept;

    /** World point to screen. */
    void projectToScreen(const SbVec3f& world, SbVec3f& screen) const noexcept;
    /** The line of sight through a screen point; its position lies on the near plane. */
    void projectPointToLine(const SbVec2f& screen, SbLine& line) const noexcept;
    /** The two ends of that line of sight on the near and the far plane. */
    void projectPointToLine(const SbVec2f& screen, SbVec3f& onNear, SbVec3f& onFar) const noexcept;
    /** Width and height on the screen of the rectangle around a box; 0 for an empty box. */
    SbVec2f projectBox(const SbBox3f& box) const noexcept;

    /** The plane across the view at a distance; its normal points at the eye. */
    SbPlane getPlane(float distance) const noexcept;
    /** The point at a distance straight ahead of the eye. */
    SbVec3f getSightPoint(float distance) const noexcept;
    /** The world point at a screen point and a distance. */
    SbVec3f getPlanePoint(float distance, const SbVec2f& screen) const noexcept;
    /** Radius of a sphere at a world point that looks as large as `screenRadius` times the view's width. */
    float getWorldToScreenScale(const SbVec3f& center, float screenRadius) const noexcept;

    /** The planes left, right, bottom, top, near, far; all half-spaces hold the inside. */
    void getViewVolumePlanes(SbPlane planes[6]) const noexcept;

    /** The part of the volume behind a rectangle of the screen. */
    SbViewVolume narrow(float left, float bottom, float right, float top) const noexcept;
    /** Makes the view larger or smaller about its middle. */
    void scaleWidth(float factor) noexcept { scaleAxis(0, factor); }
    void scaleHeight(float factor) noexcept { scaleAxis(1, factor); }
    void scale(float factor) noexcept;

    /** True when the point lies inside. */
    bool intersect(const SbVec3f& point) const noexcept;
    /** False only when the box lies outside of one of the six planes (or is empty): quick, and never culls too much. */
    bool intersect(const SbBox3f& box) const noexcept;

private:
    void setWindow(ProjectionType type, const SbVec2f& min, const SbVec2f& max, float nearDist, float farDist) noexcept;
    void scaleAxis(int axis, float factor) noexcept;
    SbVec3f toWorld(const SbVec3f& inCamera) const noexcept;
    SbVec3f toCamera(const SbVec3f& inWorld) const noexcept;
    /** How much larger the view is at a distance than on the near plane. */
    float growth(float distance) const noexcept;

    ProjectionType m_type = ORTHOGRAPHIC;
    SbVec3f m_position;
    SbRotation m_orientation;
    SbVec2f m_min{-1, -1}; ///< window on the near plane, in camera space
    SbVec2f m_max{1, 1};
    float m_near = 1;
    float m_far = 10;
};
