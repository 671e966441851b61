#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFUShort.h>
#include <vexel/nodes/SoNode.h>

/** How faces, lines and points are drawn. */
class VEXEL_API SoDrawStyle : public SoNode {
    SO_NODE(SoDrawStyle, SoNode)
public:
    enum Style { FILLED, LINES, POINTS, INVISIBLE };
    static constexpr SoEnumEntry Style_names[] = {
        {"FILLED", FILLED}, {"LINES", LINES}, {"POINTS", POINTS}, {"INVISIBLE", INVISIBLE}};

    SoSFEnum style{this, "style", FILLED, Style_names};
    /** Diameter in pixels; 0 for the default of 1. */
    SoSFFloat pointSize{this, "pointSize", 0};
    /** In pixels; 0 for the default of 1. */
    SoSFFloat lineWidth{this, "lineWidth", 0};
    /** A bit for each pixel along the line, the lowest first. */
    SoSFUShort linePattern{this, "linePattern", 0xffff};
    /** Pixels for each bit of the pattern, from 1 to 255. */
    SoSFInt32 linePatternScaleFactor{this, "linePatternScaleFactor", 1};

    void doAction(SoAction& action) override;
};
