#pragma once

class SbMatrix;
class SbVec3f;

namespace vexel {

/** Where a line, as it is seen, comes nearest to the middle of the screen. Both ends may be the same point. */
struct ScreenDistance {
    /** `toClip` maps the ends, as row vectors, to clip space. */
    ScreenDistance(const SbMatrix& toClip, const SbVec3f& a, const SbVec3f& b);

    float distance; ///< in normalized device coordinates; infinite when nothing of the line is in front of the viewer
    float x, y;     ///< the nearest place, seen from the middle
    float along;    ///< place on the line itself: 0 at `a`, 1 at `b`
};

} // namespace vexel
