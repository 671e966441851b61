#pragma once

#include <vexel/nodes/SoIndexedShape.h>

/** Strips of triangles by index. PER_PART binds to strips, PER_FACE to triangles. */
class VEXEL_API SoIndexedTriangleStripSet : public SoIndexedShape {
    SO_NODE(SoIndexedTriangleStripSet, SoIndexedShape)
public:
    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
};
