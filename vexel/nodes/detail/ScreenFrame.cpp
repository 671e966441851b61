#include <vexel/nodes/detail/ScreenFrame.h>

#include <algorithm>

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec2s.h>
#include <vexel/base/SbViewVolume.h>
#include <vexel/state/SoState.h>

ScreenFrame::ScreenFrame(const SoState& state)
{
    const SbViewVolume& view = state->viewVolume;
    const SbMatrix toObject = state->model.inverse();
    SbVec3f origin;
    state->model.multVecMatrix(SbVec3f(0, 0, 0), origin);
    // A window pixel is as large as the plane through the origin makes it.
    const SbVec3f direction = view.getProjectionDirection();
    float distance = (origin - view.getProjectionPoint()).dot(direction);
    if (view.getProjectionType() == SbViewVolume::PERSPECTIVE)
        distance = std::max(distance, view.getNearDist());
    const SbVec2s pixels = state.getViewportRegion().getViewportSizePixels();
    const SbVec3f corner = view.getPlanePoint(distance, SbVec2f(0, 0));
    const SbVec3f right = view.getPlanePoint(distance, SbVec2f(1, 0)) - corner;
    const SbVec3f up = view.getPlanePoint(distance, SbVec2f(0, 1)) - corner;
    toObject.multDirMatrix(right / static_cast<float>(std::max<short>(pixels[0], 1)), m_right);
    toObject.multDirMatrix(up / static_cast<float>(std::max<short>(pixels[1], 1)), m_up);
    toObject.multDirMatrix(-direction, m_normal);
    m_normal.normalize();
}
