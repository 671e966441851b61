#include <vexel/nodes/SoPerspectiveCamera.h>

#include <algorithm>
#include <cmath>

namespace {
constexpr float Pi = 3.14159265f;
}

void SoPerspectiveCamera::scaleHeight(float factor)
{
    heightAngle = std::clamp(heightAngle.getValue() * factor, 1e-4f, Pi - 1e-4f);
}

SbViewVolume SoPerspectiveCamera::getViewVolume(float aspect) const
{
    // Values that make no view, as a file may hold them, are brought to the nearest ones that do.
    const float angle = std::clamp(heightAngle.getValue(), 1e-4f, Pi - 1e-4f);
    const Distances distances = getViewDistances();
    const float nearest = std::max(distances.nearest, 1e-6f);
    const float farthest = std::max(distances.farthest, nearest * 1.0001f);
    SbViewVolume volume;
    volume.perspective(angle, aspect > 0 ? aspect : std::max(aspectRatio.getValue(), 1e-4f), nearest, farthest);
    place(volume);
    return volume;
}

void SoPerspectiveCamera::viewSphere(const SbVec3f& center, float radius, float aspect, float slack)
{
    const float half = std::clamp(heightAngle.getValue(), 1e-4f, Pi - 1e-4f) / 2;
    // The narrower of the two angles of the view decides.
    const float narrow = aspect < 1 ? std::atan(std::tan(half) * aspect) : half;
    const float distance = radius / std::sin(narrow);
    position = center - getViewDirection() * distance;
    focalDistance = distance;
    nearDistance = std::max(distance - radius * slack, distance * 1e-3f);
    farDistance = distance + radius * slack;
}
