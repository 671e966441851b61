#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoShape.h>

/**
 * Flat text in space, beginning at the origin in the plane z = 0. Fonts need a QGuiApplication, on any platform;
 * without one the text is not seen.
 */
class VEXEL_API SoAsciiText : public SoShape {
    SO_NODE(SoAsciiText, SoShape)
public:
    enum Justification { LEFT = 1, RIGHT, CENTER };
    static constexpr SoEnumEntry Justification_names[] = {{"LEFT", LEFT}, {"RIGHT", RIGHT}, {"CENTER", CENTER}};

    /** One value for each line. */
    SoMFString string{this, "string"};
    /** From line to line, in heights of the font. */
    SoSFFloat spacing{this, "spacing", 1};
    SoSFEnum justification{this, "justification", LEFT, Justification_names};
    /** To which width each line is stretched or squeezed; 0 leaves it as wide as it is. */
    SoMFFloat width{this, "width", 0.0f};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return ON_FONT; }
};
