#pragma once

#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoNonIndexedShape.h>
#include <vexel/nodes/SoVertexShape.h>

/** Points at consecutive coordinates. */
class VEXEL_API SoPointSet : public SoNonIndexedShape {
    SO_NODE(SoPointSet, SoNonIndexedShape)
public:
    /** -1 for all coordinates. */
    SoSFInt32 numPoints{this, "numPoints", -1};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return SoVertexShape::getDependencies() & ~ON_SHAPE_HINTS; }

protected:
    int countCoordinates(int available) const override;
};
