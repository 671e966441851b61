#pragma once

#include <vector>

#include <vexel/base/SbVec3f.h>

class StateCoordinates;
struct FaceList;

/** Normal of a ring of points that need not lie in one plane; its length is twice the area. */
SbVec3f newellNormal(const std::vector<SbVec3f>& ring);

/**
 * A unit normal for each corner of the list: the mean, by area, of the faces at its point whose normals differ from
 * its own face's by less than the crease angle. Points in the same place are one, whichever coordinate gives them.
 */
std::vector<SbVec3f> generateNormals(const FaceList& list, const StateCoordinates& coordinates, float creaseAngle,
                                     bool isClockwise);
