#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoSeparatorKit.h>

/** One shape with all that it may need. */
class VEXEL_API SoShapeKit : public SoSeparatorKit {
    SO_KIT(SoShapeKit, SoSeparatorKit)
public:
    SoSFNode materialBinding{this, "materialBinding"};
    SoSFNode normalBinding{this, "normalBinding"};
    SoSFNode textureCoordinateBinding{this, "textureCoordinateBinding"};
    SoSFNode shapeHints{this, "shapeHints"};
    SoSFNode coordinate4{this, "coordinate4"};
    SoSFNode coordinate3{this, "coordinate3"};
    SoSFNode normal{this, "normal"};
    SoSFNode textureCoordinate2{this, "textureCoordinate2"};
    SoSFNode textureCoordinateFunction{this, "textureCoordinateFunction"};
    SoSFNode shapeSeparator{this, "shapeSeparator"};
    /** For the shape alone, unlike transform, which is for the items of childList too. */
    SoSFNode localTransform{this, "localTransform"};
    /** Any shape; a Cube at first. */
    SoSFNode shape{this, "shape"};

    SoShapeKit() { makeDefaultParts(); }
};
