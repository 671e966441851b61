#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoNode.h>

/** Moves what is drawn in depth, so that lines on faces can be told from them. */
class VEXEL_API SoPolygonOffset : public SoNode {
    SO_NODE(SoPolygonOffset, SoNode)
public:
    enum Style { FILLED = 1, LINES = 2, POINTS = 4 };
    static constexpr SoEnumEntry Style_names[] = {{"FILLED", FILLED}, {"LINES", LINES}, {"POINTS", POINTS}};

    /** Multiplied with the depth slope of a face; positive is away from the viewer. */
    SoSFFloat factor{this, "factor", 1};
    /** Smallest steps of depth. */
    SoSFFloat units{this, "units", 1};
    /** The draw styles that are moved. */
    SoSFBitMask styles{this, "styles", FILLED, Style_names};
    SoSFBool on{this, "on", true};

    void doAction(SoAction& action) override;
};
