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

/** The view for places relative to an origin: what is left of its translation is small, and exact. */
SbMatrix relativeTo(const float* origin, const SbMatrix& view)
{
    SbMatrix result = view;
    for (int column = 0; column < 3; ++column) {
        double sum = view[3][column];
        for (int row = 0; row < 3; ++row)
            sum += static_cast<double>(origin[row]) * view[row][column];
        result[3][column] = static_cast<float>(sum);
    }
    return result;
}

void copy(float* to, const SbMatrix& from)
{
    std::memcpy(to, from.getValue(), 16 * sizeof(float));
}

} // namespace

Camera::Camera(const RenderView& source) : origin{}, eye{}
{
    const SbMatrix back = source.view.inverse();
    for (int i = 0; i < 3; ++i)
        origin[i] = back[3][i];
    const SbMatrix relative = relativeTo(origin, source.view);
    const SbMatrix to_clip = source.projection * cropTo(source.window);
    copy(view, relative);
    copy(viewProjection, relative * to_clip);
    copy(worldToClip, source.view * to_clip);
    if (source.projection[2][3] == 0) {
        SbVec3f towards(back[2][0], back[2][1], back[2][2]);
        towards.normalize();
        for (int i = 0; i < 3; ++i)
            eye[i] = towards[i];
    } else {
        eye[3] = 1;
    }
    viewport[0] = static_cast<float>(source.viewport.x);
    viewport[1] = static_cast<float>(source.viewport.y);
    viewport[2] = static_cast<float>(source.viewport.width);
    viewport[3] = static_cast<float>(source.viewport.height);
}

bool Camera::operator==(const Camera& other) const
{
    // Nothing but floats, and the same bits draw the same picture.
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
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
        depth += (0.5f * (bounds.lo[axis] + bounds.hi[axis]) - origin[axis]) * view[axis * 4 + 2];
    return -depth;
}

} // namespace vexel
