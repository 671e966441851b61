#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoShape.h>

/**
 * Text that faces the viewer and keeps its size on the screen, beginning at the origin. The size of the font counts in
 * points. Fonts need a QGuiApplication, on any platform; without one the text is not seen.
 */
class VEXEL_API SoText2 : public SoShape {
    SO_NODE(SoText2, SoShape)
public:
    enum Justification { LEFT = 1, RIGHT, CENTER };
    static constexpr SoEnumEntry Justification_names[] = {{"LEFT", LEFT}, {"RIGHT", RIGHT}, {"CENTER", CENTER}};

    /** One value for each line. */
    SoMFString string{this, "string"};
    /** From line to line, in heights of the font. */
    SoSFFloat spacing{this, "spacing", 1};
    SoSFEnum justification{this, "justification", LEFT, Justification_names};

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return ON_FONT | ON_VIEW; }
};
