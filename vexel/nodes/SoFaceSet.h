#pragma once

#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoNonIndexedShape.h>

/** Faces of consecutive coordinates. */
class VEXEL_API SoFaceSet : public SoNonIndexedShape {
    SO_NODE(SoFaceSet, SoNonIndexedShape)
public:
    /** Corners of each face; -1 for all coordinates that are left. */
    SoMFInt32 numVertices{this, "numVertices", -1};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;

protected:
    int countCoordinates(int available) const override;
};
