#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoShape.h>

/**
 * Solid text in space: its front lies in the plane z = 0, its back one unit behind. Parts for material binding: front,
 * sides, back. Fonts need a QGuiApplication, on any platform; without one the text is not seen.
 */
class VEXEL_API SoText3 : public SoShape {
    SO_NODE(SoText3, SoShape)
public:
    enum Part { FRONT = 1, SIDES = 2, BACK = 4, ALL = 7 };
    static constexpr SoEnumEntry Part_names[] = {{"FRONT", FRONT}, {"SIDES", SIDES}, {"BACK", BACK}, {"ALL", ALL}};
    enum Justification { LEFT = 1, RIGHT, CENTER };
    static constexpr SoEnumEntry Justification_names[] = {{"LEFT", LEFT}, {"RIGHT", RIGHT}, {"CENTER", CENTER}};

    /** One value for each line. */
    SoMFString string{this, "string"};
    /** From line to line, in heights of the font. */
    SoSFFloat spacing{this, "spacing", 1};
    SoSFEnum justification{this, "justification", LEFT, Justification_names};
    /** The parts that are there. */
    SoSFBitMask parts{this, "parts", FRONT, Part_names};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return ON_FONT | ON_MATERIAL_BINDING; }
};
