#pragma once

#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoNonIndexedShape.h>
#include <vexel/nodes/SoVertexShape.h>

/** Lines through consecutive coordinates. PER_PART binds to segments, PER_FACE to lines. */
class VEXEL_API SoLineSet : public SoNonIndexedShape {
    SO_NODE(SoLineSet, SoNonIndexedShape)
public:
    /** Coordinates of each line; -1 for all that are left. */
    SoMFInt32 numVertices{this, "numVertices", -1};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return SoVertexShape::getDependencies() & ~ON_SHAPE_HINTS; }

protected:
    int countCoordinates(int available) const override;
};
