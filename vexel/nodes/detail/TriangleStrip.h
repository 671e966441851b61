#pragma once

#include <vexel/nodes/detail/FaceList.h>

class StateCoordinates;

/** Adds the triangles of a strip of @p count corners, every other one turned so that all face the same way. */
template <class CornerAt>
void addStrip(FaceList& list, const StateCoordinates& coordinates, int count, int strip, int& triangle,
              CornerAt&& cornerAt)
{
    for (int i = 2; i < count; ++i) {
        const bool isTurned = i % 2 != 0;
        list.addTriangle(coordinates, cornerAt(isTurned ? i - 1 : i - 2), cornerAt(isTurned ? i - 2 : i - 1),
                         cornerAt(i), {triangle, strip});
        ++triangle;
    }
}
