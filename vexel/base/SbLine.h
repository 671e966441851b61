#pragma once

#include <vexel/base/SbVec3f.h>

/** Endless straight line: a position on it and a unit direction. */
class VEXEL_API SbLine {
public:
    SbLine() noexcept = default;
    /** The line from `from` to `to`. */
    SbLine(const SbVec3f& from, const SbVec3f& to) noexcept { setValue(from, to); }

    void setValue(const SbVec3f& from, const SbVec3f& to) noexcept { setPosDir(from, to - from); }
    /** The direction is made unit length; a direction of length 0 makes the line a point. */
    void setPosDir(const SbVec3f& position, const SbVec3f& direction) noexcept;

    const SbVec3f& getPosition() const noexcept { return m_position; }
    const SbVec3f& getDirection() const noexcept { return m_direction; }

    /** The point of the line nearest to `point`. */
    SbVec3f getClosestPoint(const SbVec3f& point) const noexcept;
    /** The points of the two lines nearest to each other; false, and nothing set, when the lines are parallel. */
    bool getClosestPoints(const SbLine& other, SbVec3f& onThis, SbVec3f& onOther) const noexcept;

private:
    SbVec3f m_position;
    SbVec3f m_direction{0, 0, -1};
};
