#pragma once

#include <vexel/state/SoState.h>

/** The coordinates in force, with or without weights. */
class StateCoordinates {
public:
    explicit StateCoordinates(const SoState& state) : m_points(state->coordinates3), m_weighted(state->coordinates4) {}

    int getNum() const { return m_weighted.isEmpty() ? m_points.num : m_weighted.num; }
    bool contains(int index) const { return index >= 0 && index < getNum(); }
    SbVec3f operator[](int index) const
    {
        if (m_weighted.isEmpty())
            return m_points[index];
        const SbVec4f& point = m_weighted[index];
        const float weight = point[3] != 0 ? point[3] : 1;
        return SbVec3f(point[0] / weight, point[1] / weight, point[2] / weight);
    }

private:
    SoStateList<SbVec3f> m_points;
    SoStateList<SbVec4f> m_weighted;
};
