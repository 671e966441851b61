#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec3f.h>

class SoState;

/** The space of pixels at a point of the present object space, first its origin, for what keeps its size on the screen.
 */
class ScreenFrame {
public:
    /** The state must live as long as this. */
    explicit ScreenFrame(const SoState& state);

    void moveTo(const SbVec3f& point);
    /** The way in object space to the place that many pixels to the right of and above the point. */
    SbVec3f at(float x, float y) const { return m_right * x + m_up * y; }
    /** Towards the viewer, in object space. */
    const SbVec3f& normal() const { return m_normal; }

private:
    const SoState& m_state;
    SbMatrix m_toObject;
    SbVec3f m_right;
    SbVec3f m_up;
    SbVec3f m_normal;
};
