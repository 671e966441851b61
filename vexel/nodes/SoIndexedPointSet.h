#pragma once

#include <vexel/nodes/SoIndexedShape.h>
#include <vexel/nodes/SoVertexShape.h>

/** Points by index. Negative indices are passed over. */
class VEXEL_API SoIndexedPointSet : public SoIndexedShape {
    SO_NODE(SoIndexedPointSet, SoIndexedShape)
public:
    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return SoVertexShape::getDependencies() & ~ON_SHAPE_HINTS; }
};
