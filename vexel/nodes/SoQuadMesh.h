#pragma once

#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoNonIndexedShape.h>

/** A net of four-cornered faces over rows of coordinates. PER_PART binds to rows of faces. */
class VEXEL_API SoQuadMesh : public SoNonIndexedShape {
    SO_NODE(SoQuadMesh, SoNonIndexedShape)
public:
    /** Coordinates from one row to the next: how many rows there are. */
    SoSFInt32 verticesPerColumn{this, "verticesPerColumn", 1};
    /** Coordinates of one row. */
    SoSFInt32 verticesPerRow{this, "verticesPerRow", 1};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;

protected:
    int countCoordinates(int available) const override;
};
