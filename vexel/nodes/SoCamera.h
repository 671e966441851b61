#pragma once

#include <optional>

#include <vexel/base/SbViewVolume.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFRotation.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoNode.h>

class SbBox3f;
class SbViewportRegion;
class SoPath;

/**
 * Base of the nodes that say from where and how the scene is seen. A camera looks along its negative z axis, with y up;
 * position and orientation are relative to the space that it stands in.
 */
class VEXEL_API SoCamera : public SoNode {
    SO_NODE_ABSTRACT(SoCamera, SoNode)
public:
    enum ViewportMapping {
        CROP_VIEWPORT_FILL_FRAME, /**< the view keeps aspectRatio in a part of the viewport; the rest is grey */
        CROP_VIEWPORT_LINE_FRAME, /**< the same, with a grey line around the view and the background outside */
        CROP_VIEWPORT_NO_FRAME,   /**< the same without the line */
        ADJUST_CAMERA,            /**< the view takes the viewport's form */
        LEAVE_ALONE               /**< the view keeps aspectRatio and is stretched */
    };
    static constexpr SoEnumEntry ViewportMapping_names[] = {{"CROP_VIEWPORT_FILL_FRAME", CROP_VIEWPORT_FILL_FRAME},
                                                            {"CROP_VIEWPORT_LINE_FRAME", CROP_VIEWPORT_LINE_FRAME},
                                                            {"CROP_VIEWPORT_NO_FRAME", CROP_VIEWPORT_NO_FRAME},
                                                            {"ADJUST_CAMERA", ADJUST_CAMERA},
                                                            {"LEAVE_ALONE", LEAVE_ALONE}};

    SoSFEnum viewportMapping{this, "viewportMapping", ADJUST_CAMERA, ViewportMapping_names};
    SoSFVec3f position{this, "position", SbVec3f(0, 0, 1)};
    SoSFRotation orientation{this, "orientation"};
    /** Width by height of the view. */
    SoSFFloat aspectRatio{this, "aspectRatio", 1};
    /** Distances from the position along the viewing direction. */
    SoSFFloat nearDistance{this, "nearDistance", 1};
    SoSFFloat farDistance{this, "farDistance", 10};
    /** Distance of what viewers turn about. */
    SoSFFloat focalDistance{this, "focalDistance", 5};

    /** Turns the camera to look at a point; up stays as close to the y axis as can be, or to @p up. */
    void pointAt(const SbVec3f& target);
    void pointAt(const SbVec3f& target, const SbVec3f& up);
    /**
     * The distances that the view has from now on instead of those of the fields, for viewers that fit them to the
     * scene as it is at the moment. They are no part of the scene: they are neither written nor copied, and nobody is
     * notified.
     */
    void setViewDistances(float nearest, float farthest) { m_viewDistances = {nearest, farthest}; }
    /** Goes back to the distances of the fields. */
    void resetViewDistances() { m_viewDistances.reset(); }
    /** Makes the height of the view larger or smaller. */
    virtual void scaleHeight(float factor) = 0;

    /** The view in the space that the camera stands in. An aspect ratio of 0 stands for the field's. */
    virtual SbViewVolume getViewVolume(float aspect = 0) const = 0;
    /** The view for a viewport, as viewportMapping asks for. */
    SbViewVolume getViewVolume(const SbViewportRegion& region) const;
    /** The part of a viewport that the view fills, as viewportMapping asks for: the middle of it, or all of it. */
    SbViewportRegion getViewportBounds(const SbViewportRegion& region) const;
    /** Whether viewportMapping keeps the view to a part of the viewport where it has another form. */
    bool isCropping() const;

    /**
     * Moves the camera along its viewing direction and sets its distances so that the graph is seen as a whole.
     * @param slack  factor on the radius for the near and far distance; at least 1
     */
    void viewAll(SoNode* root, const SbViewportRegion& region, float slack = 1);
    /** The same for what a path leads to. The camera must stand outside of the path's transforms. */
    void viewAll(SoPath* path, const SbViewportRegion& region, float slack = 1);
    /** The same for a box in the space that the camera stands in; an empty box changes nothing. */
    void viewAll(const SbBox3f& box, const SbViewportRegion& region, float slack = 1);

    void doAction(SoAction& action) override;

protected:
    SoCamera() = default;

    /** Places the camera so that a sphere is seen; @p aspect is that of the view. */
    virtual void viewSphere(const SbVec3f& center, float radius, float aspect, float slack) = 0;
    /** Turns and moves a view volume from the origin to the place of the camera. */
    void place(SbViewVolume& volume) const;
    SbVec3f getViewDirection() const;

    struct Distances {
        float nearest;
        float farthest;
    };
    Distances getViewDistances() const;

private:
    std::optional<Distances> m_viewDistances;
};
