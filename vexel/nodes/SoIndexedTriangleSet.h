#pragma once

#include <vexel/nodes/SoIndexedShape.h>

/** Triangles, each of three consecutive indices. Negative indices between triangles are passed over. */
class VEXEL_API SoIndexedTriangleSet : public SoIndexedShape {
    SO_NODE(SoIndexedTriangleSet, SoIndexedShape)
public:
    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
};
