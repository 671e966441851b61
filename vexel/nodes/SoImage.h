#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoShape.h>

/** A picture that faces the viewer and keeps its size on the screen, at the origin. Light does not count. */
class VEXEL_API SoImage : public SoShape {
    SO_NODE(SoImage, SoShape)
public:
    enum VertAlignment { BOTTOM, HALF, TOP };
    static constexpr SoEnumEntry VertAlignment_names[] = {{"BOTTOM", BOTTOM}, {"HALF", HALF}, {"TOP", TOP}};
    enum HorAlignment { LEFT, CENTER, RIGHT };
    static constexpr SoEnumEntry HorAlignment_names[] = {{"LEFT", LEFT}, {"CENTER", CENTER}, {"RIGHT", RIGHT}};

    /** In pixels; -1 for the size of the picture. */
    SoSFInt32 width{this, "width", -1};
    SoSFInt32 height{this, "height", -1};
    /** What of the picture is at the origin. */
    SoSFEnum vertAlignment{this, "vertAlignment", BOTTOM, VertAlignment_names};
    SoSFEnum horAlignment{this, "horAlignment", LEFT, HorAlignment_names};
    SoSFImage image{this, "image"};
    /** File of the picture; setting it reads the picture into image. */
    SoSFString filename{this, "filename"};

    /** Puts the picture into the state as the texture of the shape. */
    void doAction(SoAction& action) override;
    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    unsigned getDependencies() const override { return ON_VIEW; }
    void readFinished(SoInput& in) override;
    void notify(SoNotList& list) override;
};
