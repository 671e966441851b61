#pragma once

#include <vexel/base/SbVec3f.h>

class SoState;

/** The space of pixels at the origin of the present object space, for what keeps its size on the screen. */
class ScreenFrame {
public:
    explicit ScreenFrame(const SoState& state);

    /** The place in object space that many pixels to the right of and above the origin. */
    SbVec3f at(float x, float y) const { return m_right * x + m_up * y; }
    /** Towards the viewer, in object space. */
    const SbVec3f& normal() const { return m_normal; }

private:
    SbVec3f m_right;
    SbVec3f m_up;
    SbVec3f m_normal;
};
