#include <vexel/nodes/SoCamera.h>

#include <algorithm>
#include <cmath>

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbViewportRegion.h>
#include <vexel/base/SoPath.h>
#include <vexel/state/SoState.h>

SbVec3f SoCamera::getViewDirection() const
{
    SbVec3f direction;
    orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
    return direction;
}

SoCamera::Distances SoCamera::getViewDistances() const
{
    return m_viewDistances.value_or(Distances{nearDistance.getValue(), farDistance.getValue()});
}

void SoCamera::place(SbViewVolume& volume) const
{
    volume.rotateCamera(orientation.getValue());
    volume.translateCamera(position.getValue());
}

void SoCamera::pointAt(const SbVec3f& target)
{
    pointAt(target, SbVec3f(0, 1, 0));
}

void SoCamera::pointAt(const SbVec3f& target, const SbVec3f& up)
{
    SbVec3f back = position.getValue() - target;
    if (back.normalize() == 0)
        return;
    SbVec3f right = up.cross(back);
    // Straight up or down: any direction across will do.
    if (right.normalize() < 1e-6f) {
        right = SbVec3f(1, 0, 0).cross(back);
        if (right.normalize() < 1e-6f)
            right = SbVec3f(0, 0, 1);
    }
    const SbVec3f above = back.cross(right);
    orientation = SbRotation(SbMatrix(right[0], right[1], right[2], 0, above[0], above[1], above[2], 0, back[0],
                                      back[1], back[2], 0, 0, 0, 0, 1));
}

SbViewVolume SoCamera::getViewVolume(const SbViewportRegion& region) const
{
    if (isCropping() || viewportMapping.getValue() == LEAVE_ALONE)
        return getViewVolume();
    const float aspect = region.getViewportAspectRatio();
    SbViewVolume volume = getViewVolume(aspect);
    // In a viewport that is higher than wide, the height is for the width.
    if (aspect > 0 && aspect < 1)
        volume.scale(1 / aspect);
    return volume;
}

bool SoCamera::isCropping() const
{
    const int mapping = viewportMapping.getValue();
    return mapping == CROP_VIEWPORT_FILL_FRAME || mapping == CROP_VIEWPORT_LINE_FRAME ||
           mapping == CROP_VIEWPORT_NO_FRAME;
}

SbViewportRegion SoCamera::getViewportBounds(const SbViewportRegion& region) const
{
    const float aspect = aspectRatio.getValue();
    const SbVec2s whole = region.getViewportSizePixels();
    if (!isCropping() || !(aspect > 0) || whole[0] < 1 || whole[1] < 1)
        return region;
    SbVec2s part = whole;
    if (aspect < region.getViewportAspectRatio())
        part[0] = std::max<short>(1, static_cast<short>(std::lround(static_cast<float>(whole[1]) * aspect)));
    else
        part[1] = std::max<short>(1, static_cast<short>(std::lround(static_cast<float>(whole[0]) / aspect)));
    SbViewportRegion bounds = region;
    bounds.setViewportPixels(region.getViewportOriginPixels() + (whole - part) / 2, part);
    return bounds;
}

void SoCamera::viewAll(SoNode* root, const SbViewportRegion& region, float slack)
{
    SoGetBoundingBoxAction action(region);
    action.apply(root);
    viewAll(action.getBoundingBox(), region, slack);
}

void SoCamera::viewAll(SoPath* path, const SbViewportRegion& region, float slack)
{
    SoGetBoundingBoxAction action(region);
    action.apply(path);
    viewAll(action.getBoundingBox(), region, slack);
}

void SoCamera::viewAll(const SbBox3f& box, const SbViewportRegion& region, float slack)
{
    if (box.isEmpty())
        return;
    const float radius = std::max(box.getSize().length() / 2, 1e-6f);
    const bool adjusts = viewportMapping.getValue() == ADJUST_CAMERA;
    const float aspect = adjusts ? std::max(region.getViewportAspectRatio(), 1.0f) : aspectRatio.getValue();
    resetViewDistances();
    viewSphere(box.getCenter(), radius, aspect, std::max(slack, 1.0f));
}

void SoCamera::doAction(SoAction& action)
{
    SoState& state = action.state();
    SbViewVolume volume = getViewVolume(state.getViewportRegion());
    // The volume keeps its size in a scaled space, as its camera would.
    const SbMatrix& model = state->model;
    if (model != SbMatrix::identity()) {
        SbVec3f translation;
        SbVec3f scale;
        SbRotation rotation;
        SbRotation axes;
        model.getTransform(translation, rotation, scale, axes);
        SbVec3f eye;
        model.multVecMatrix(volume.getProjectionPoint(), eye);
        volume.rotateCamera(rotation);
        volume.translateCamera(eye - volume.getProjectionPoint());
    }
    state->camera = this;
    state->viewVolume = volume;
    state->viewPixels = getViewportBounds(state.getViewportRegion()).getViewportSizePixels();
    action.visitCamera(*this);
}
