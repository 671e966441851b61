#pragma once

#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoPointSet.h>

/**
 * Small signs of a fixed size in pixels at consecutive coordinates. A sign faces the viewer with its middle at its
 * point, in the colour of the point's material; it is seen as long as the point is in sight.
 */
class VEXEL_API SoMarkerSet : public SoPointSet {
    SO_NODE(SoMarkerSet, SoPointSet)
public:
    /** The signs, each in three sizes; the number of a sign is its place here plus NumSigns times its size. */
    enum Sign {
        CROSS,
        PLUS,
        MINUS,
        SLASH,
        BACKSLASH,
        BAR,
        STAR,
        Y,
        LIGHTNING,
        WELL,
        CIRCLE_LINE,
        SQUARE_LINE,
        DIAMOND_LINE,
        TRIANGLE_LINE,
        RHOMBUS_LINE,
        HOURGLASS_LINE,
        SATELLITE_LINE,
        PINE_TREE_LINE,
        CAUTION_LINE,
        SHIP_LINE,
        CIRCLE_FILLED,
        SQUARE_FILLED,
        DIAMOND_FILLED,
        TRIANGLE_FILLED,
        RHOMBUS_FILLED,
        HOURGLASS_FILLED,
        SATELLITE_FILLED,
        PINE_TREE_FILLED,
        CAUTION_FILLED,
        SHIP_FILLED,
        NumSigns
    };
    /** 5, 7 or 9 pixels wide. */
    enum Size { SIZE_5_5, SIZE_7_7, SIZE_9_9, NumSizes };
    static constexpr int markerOf(Sign sign, Size size) { return sign + size * NumSigns; }
    /** Width and height of a sign in pixels, and whether one of them is part of it; rows from the top. */
    ///@{
    static int getNumPixels(int marker);
    static bool hasPixel(int marker, int column, int row);
    ///@}

    /** The sign of each point, by markerOf(); the last one is for all points that follow. A negative number
     *  shows none, one beyond the last sign shows the first. */
    SoMFInt32 markerIndex{this, "markerIndex", 0};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    SbBox3f computeBoundingBox(const SoState& state) const override;
    unsigned getDependencies() const override { return SoPointSet::getDependencies() | BOX_ON_VIEW; }

private:
    int markerAt(int point) const;
};
