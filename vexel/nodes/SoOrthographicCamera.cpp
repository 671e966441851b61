#include <vexel/nodes/SoOrthographicCamera.h>

#include <algorithm>

void SoOrthographicCamera::scaleHeight(float factor)
{
    height = height.getValue() * factor;
}

SbViewVolume SoOrthographicCamera::getViewVolume(float aspect) const
{
    const float ratio = aspect > 0 ? aspect : std::max(aspectRatio.getValue(), 1e-4f);
    const float halfHeight = std::max(height.getValue(), 1e-6f) / 2;
    const Distances distances = getViewDistances();
    const float nearest = distances.nearest;
    const float farthest = distances.farthest > nearest ? distances.farthest : nearest + 1;
    SbViewVolume volume;
    volume.ortho(-halfHeight * ratio, halfHeight * ratio, -halfHeight, halfHeight, nearest, farthest);
    place(volume);
    return volume;
}

void SoOrthographicCamera::viewSphere(const SbVec3f& center, float radius, float aspect, float slack)
{
    height = 2 * radius / std::min(aspect, 1.0f);
    position = center - getViewDirection() * radius * 2;
    focalDistance = radius * 2;
    nearDistance = radius * 2 - radius * slack;
    farDistance = radius * 2 + radius * slack;
}
