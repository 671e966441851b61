#pragma once

#include <vexel/base/SbBox3f.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoShape.h>

/** A cylinder about the y axis, its middle at the origin. Parts for material binding: sides, top, bottom. */
class VEXEL_API SoCylinder : public SoShape {
    SO_NODE(SoCylinder, SoShape)
public:
    enum Part { SIDES = 1, TOP = 2, BOTTOM = 4, ALL = 7 };
    static constexpr SoEnumEntry Part_names[] = {{"SIDES", SIDES}, {"TOP", TOP}, {"BOTTOM", BOTTOM}, {"ALL", ALL}};

    /** The parts that are there. */
    SoSFBitMask parts{this, "parts", ALL, Part_names};
    SoSFFloat radius{this, "radius", 1};
    SoSFFloat height{this, "height", 2};

    bool hasPart(Part part) const { return (parts.getValue() & part) != 0; }
    void addPart(Part part) { parts = parts.getValue() | part; }
    void removePart(Part part) { parts = parts.getValue() & ~part; }

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    SbBox3f computeBoundingBox(const SoState& state) const override;
    unsigned getDependencies() const override { return ON_COMPLEXITY | ON_MATERIAL_BINDING; }
};
