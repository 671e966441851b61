#include <vexel/nodes/detail/ScreenFrame.h>

#include <algorithm>

#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec2s.h>
#include <vexel/base/SbViewVolume.h>
#include <vexel/state/SoState.h>

ScreenFrame::ScreenFrame(const SoState& state) : m_state(state), m_toObject(state->model.inverse())
{
    m_toObject.multDirMatrix(-state->viewVolume.getProjectionDirection(), m_normal);
    m_normal.normalize();
    moveTo(SbVec3f(0, 0, 0));
}

void ScreenFrame::moveTo(const SbVec3f& point)
{
    const SbViewVolume& view = m_state->viewVolume;
    SbVec3f place;
    m_state->model.multVecMatrix(point, place);
    // A window pixel is as large as the plane through the point makes it.
    const SbVec3f direction = view.getProjectionDirection();
    float distance = (place - view.getProjectionPoint()).dot(direction);
    if (view.getProjectionType() == SbViewVolume::PERSPECTIVE)
        distance = std::max(distance, view.getNearDist());
    const SbVec2s pixels = m_state.getViewPixels();
    const SbVec3f corner = view.getPlanePoint(distance, SbVec2f(0, 0));
    const SbVec3f right = view.getPlanePoint(distance, SbVec2f(1, 0)) - corner;
    const SbVec3f up = view.getPlanePoint(distance, SbVec2f(0, 1)) - corner;
    m_toObject.multDirMatrix(right / static_cast<float>(std::max<short>(pixels[0], 1)), m_right);
    m_toObject.multDirMatrix(up / static_cast<float>(std::max<short>(pixels[1], 1)), m_up);
}
