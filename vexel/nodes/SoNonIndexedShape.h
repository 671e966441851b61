#pragma once

#include <vexel/base/SbBox3f.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/nodes/SoVertexShape.h>

/** Base of the shapes that take the coordinates in force one after the other. */
class VEXEL_API SoNonIndexedShape : public SoVertexShape {
    SO_NODE_ABSTRACT(SoNonIndexedShape, SoVertexShape)
public:
    /** The first coordinate that is used. */
    SoSFInt32 startIndex{this, "startIndex", 0};

    SbBox3f computeBoundingBox(const SoState& state) const override;

protected:
    SoNonIndexedShape() = default;

    /** How many of the coordinates that there are from the first one on the shape uses. */
    virtual int countCoordinates(int available) const { return available; }
    /** First coordinate and number of coordinates that are used and exist. */
    struct Range {
        int first;
        int count;
    };
    Range getRange(const SoState& state) const;
};
