#pragma once

#include <vector>

#include <vexel/base/SbVec3f.h>
#include <vexel/nodes/detail/Bindings.h>

class SoIndexedShape;
class SoState;
class StateCoordinates;
struct SoShapeGeometry;

/** The faces of a shape before they are cut into triangles. All coordinates in it exist. */
struct FaceList {
    struct Face {
        int firstCorner;
        int numCorners;
        ShapePart part;
    };
    std::vector<ShapeCorner> corners;
    std::vector<Face> faces;

    /** Ends a face that consists of the corners behind the face before; with less than three corners it is dropped. */
    void endFace(const ShapePart& part);
    /** Adds a triangle, unless one of its coordinates does not exist. */
    void addTriangle(const StateCoordinates& coordinates, const ShapeCorner& a, const ShapeCorner& b,
                     const ShapeCorner& c, const ShapePart& part);
};

/** Cuts faces into triangles and gives them vertices, with generated normals when the state has none. */
void buildFaces(const FaceList& list, const SoState& state, const SoIndexedShape* indices, SoShapeGeometry& geometry);
