#pragma once

#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoNonIndexedShape.h>

/** Strips of triangles: each coordinate behind the first two of a strip makes a triangle with the two before it. */
class VEXEL_API SoTriangleStripSet : public SoNonIndexedShape {
    SO_NODE(SoTriangleStripSet, SoNonIndexedShape)
public:
    /** Coordinates of each strip; -1 for all that are left. */
    SoMFInt32 numVertices{this, "numVertices", -1};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;

protected:
    int countCoordinates(int available) const override;
};
