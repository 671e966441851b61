#include <vexel/render/detail/Camera.h>

#include <cstring>

namespace vexel {

namespace {

/** Enlarges a part of the picture to the whole. */
SbMatrix cropTo(const std::array<float, 4>& window)
{
    const float width = window[2] - window[0];
    const float height = window[3] - window[1];
    SbMatrix crop;
    crop[0][0] = 1 / width;
    crop[1][1] = 1 / height;
    crop[3][0] = (1 - window[0] - window[2]) / width;
    crop[3][1] = (1 - window[1] - window[3]) / height;
    return crop;
}

} // namespace

Camera::Camera(const RenderView& source)
{
    const SbMatrix both = source.view * source.projection * cropTo(source.window);
    std::memcpy(viewProjection, both.getValue(), sizeof viewProjection);
    std::memcpy(view, source.view.getValue(), sizeof view);
    const SbMatrix back = source.view.inverse();
    const bool parallel = source.projection[2][3] == 0;
    const float* row = back[parallel ? 2 : 3];
    float length = 1;
    if (parallel)
        length = std::sqrt(row[0] * row[0] + row[1] * row[1] + row[2] * row[2]);
    for (int i = 0; i < 3; ++i)
        eye[i] = row[i] / length;
    eye[3] = parallel ? 0.0f : 1.0f;
    viewport[0] = static_cast<float>(source.viewport.x);
    viewport[1] = static_cast<float>(source.viewport.y);
    viewport[2] = static_cast<float>(source.viewport.width);
    viewport[3] = static_cast<float>(source.viewport.height);
}

bool Camera::operator==(const Camera& other) const
{
    return std::memcmp(this, &other, sizeof *this) == 0;
}

void Camera::bringForward()
{
    for (int row = 0; row < 4; ++row)
        viewProjection[row * 4 + 2] -= 2e-4f * viewProjection[row * 4 + 3];
}

float Camera::distanceOf(const Bounds& bounds) const
{
    float depth = view[14];
    for (int axis = 0; axis < 3; ++axis)
        depth += 0.5f * (bounds.lo[axis] + bounds.hi[axis]) * view[axis * 4 + 2];
    return -depth;
}

} // namespace vexel
