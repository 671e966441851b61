#include <vexel/viewer/detail/CameraState.h>

#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoOrthographicCamera.h>

CameraState::CameraState(const SoCamera& camera)
    : position(camera.position.getValue()), orientation(camera.orientation.getValue()),
      focalDistance(camera.focalDistance.getValue())
{
    if (camera.isOfType(SoOrthographicCamera::getClassTypeId()))
        height = static_cast<const SoOrthographicCamera&>(camera).height.getValue();
}

void CameraState::applyTo(SoCamera& camera) const
{
    camera.position = position;
    camera.orientation = orientation;
    camera.focalDistance = focalDistance;
    if (camera.isOfType(SoOrthographicCamera::getClassTypeId()))
        static_cast<SoOrthographicCamera&>(camera).height = height;
}

CameraState CameraState::between(const CameraState& a, const CameraState& b, float t)
{
    CameraState state;
    state.position = a.position + (b.position - a.position) * t;
    state.orientation = SbRotation::slerp(a.orientation, b.orientation, t);
    state.focalDistance = a.focalDistance + (b.focalDistance - a.focalDistance) * t;
    state.height = a.height + (b.height - a.height) * t;
    return state;
}
