#pragma once

#include <vexel/nodes/SoIndexedShape.h>

/** Faces of any number of corners, which may be concave and have holes when the shape hints do not rule it out. */
class VEXEL_API SoIndexedFaceSet : public SoIndexedShape {
    SO_NODE(SoIndexedFaceSet, SoIndexedShape)
public:
    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
};
