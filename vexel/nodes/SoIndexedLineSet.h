#pragma once

#include <vexel/nodes/SoIndexedShape.h>
#include <vexel/nodes/SoVertexShape.h>

/** Lines by index. PER_PART binds to segments, PER_FACE to lines. */
class VEXEL_API SoIndexedLineSet : public SoIndexedShape {
    SO_NODE(SoIndexedLineSet, SoIndexedShape)
public:
    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return SoVertexShape::getDependencies() & ~ON_SHAPE_HINTS; }
};
