#include <vexel/viewer/detail/CameraMotion.h>

#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoPerspectiveCamera.h>

#include <algorithm>
#include <cmath>

namespace {

SbVec3f viewDirection(const SoCamera& camera)
{
    SbVec3f direction;
    camera.orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
    return direction;
}

// A sphere in the middle, a hyperbolic sheet around it: no place on the screen is without a point.
SbVec3f ballPoint(const SbVec2f& place)
{
    constexpr float Radius = 0.8f;
    const float squared = place[0] * place[0] + place[1] * place[1];
    const float depth =
        squared < Radius * Radius / 2 ? std::sqrt(Radius * Radius - squared) : Radius * Radius / 2 / std::sqrt(squared);
    SbVec3f point(place[0], place[1], depth);
    point.normalize();
    return point;
}

// Half the height of what is seen at the focal distance.
float halfHeight(const SoCamera& camera)
{
    if (camera.isOfType(SoOrthographicCamera::getClassTypeId()))
        return static_cast<const SoOrthographicCamera&>(camera).height.getValue() / 2;
    const auto& perspective = static_cast<const SoPerspectiveCamera&>(camera);
    return camera.focalDistance.getValue() * std::tan(perspective.heightAngle.getValue() / 2);
}

} // namespace

SbVec3f CameraMotion::focalPoint(const SoCamera& camera)
{
    return camera.position.getValue() + viewDirection(camera) * camera.focalDistance.getValue();
}

SbRotation CameraMotion::ballRotation(const SbVec2f& from, const SbVec2f& to)
{
    return SbRotation(ballPoint(from), ballPoint(to));
}

void CameraMotion::orbit(SoCamera& camera, const SbRotation& rotation)
{
    const SbVec3f focus = focalPoint(camera);
    // The scene turns with the hand, so the camera turns against it.
    camera.orientation = rotation.inverse() * camera.orientation.getValue();
    camera.position = focus - viewDirection(camera) * camera.focalDistance.getValue();
}

void CameraMotion::pan(SoCamera& camera, const SbVec2f& from, const SbVec2f& to)
{
    const float scale = halfHeight(camera);
    const SbVec3f inCamera((from[0] - to[0]) * scale, (from[1] - to[1]) * scale, 0);
    SbVec3f shift;
    camera.orientation.getValue().multVec(inCamera, shift);
    camera.position = camera.position.getValue() + shift;
}

void CameraMotion::dolly(SoCamera& camera, float factor)
{
    constexpr float Nearest = 1e-6f;
    constexpr float Farthest = 1e12f;
    if (camera.isOfType(SoOrthographicCamera::getClassTypeId())) {
        auto& orthographic = static_cast<SoOrthographicCamera&>(camera);
        orthographic.height = std::clamp(orthographic.height.getValue() * factor, Nearest, Farthest);
        return;
    }
    const SbVec3f focus = focalPoint(camera);
    const float distance = std::clamp(camera.focalDistance.getValue() * factor, Nearest, Farthest);
    camera.focalDistance = distance;
    camera.position = focus - viewDirection(camera) * distance;
}
