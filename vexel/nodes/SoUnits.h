#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoTransformation.h>

/** Gives the unit of length of what is behind, relative to the unit in force before; metres at first. */
class VEXEL_API SoUnits : public SoTransformation {
    SO_NODE(SoUnits, SoTransformation)
public:
    enum Units {
        METERS,
        CENTIMETERS,
        MILLIMETERS,
        MICROMETERS,
        MICRONS,
        NANOMETERS,
        ANGSTROMS,
        KILOMETERS,
        FEET,
        INCHES,
        POINTS,
        YARDS,
        MILES,
        NAUTICAL_MILES
    };
    static constexpr SoEnumEntry Units_names[] = {{"METERS", METERS},
                                                  {"CENTIMETERS", CENTIMETERS},
                                                  {"MILLIMETERS", MILLIMETERS},
                                                  {"MICROMETERS", MICROMETERS},
                                                  {"MICRONS", MICRONS},
                                                  {"NANOMETERS", NANOMETERS},
                                                  {"ANGSTROMS", ANGSTROMS},
                                                  {"KILOMETERS", KILOMETERS},
                                                  {"FEET", FEET},
                                                  {"INCHES", INCHES},
                                                  {"POINTS", POINTS},
                                                  {"YARDS", YARDS},
                                                  {"MILES", MILES},
                                                  {"NAUTICAL_MILES", NAUTICAL_MILES}};

    SoSFEnum units{this, "units", METERS, Units_names};

    SbMatrix getMatrix(const SoState& state) const override;
    void doAction(SoAction& action) override;

private:
    double metersPerUnit() const;
};
