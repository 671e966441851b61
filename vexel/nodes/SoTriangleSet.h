#pragma once

#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoNonIndexedShape.h>

/** Triangles, each of three consecutive coordinates. */
class VEXEL_API SoTriangleSet : public SoNonIndexedShape {
    SO_NODE(SoTriangleSet, SoNonIndexedShape)
public:
    /** Coordinates that are used; -1 for all. */
    SoSFInt32 numVertices{this, "numVertices", -1};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;

protected:
    int countCoordinates(int available) const override;
};
