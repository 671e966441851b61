#pragma once

#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoTextureCoordinateFunction.h>

/** Projects the texture onto shapes along a direction. */
class VEXEL_API SoTextureCoordinatePlane : public SoTextureCoordinateFunction {
    SO_NODE(SoTextureCoordinatePlane, SoTextureCoordinateFunction)
public:
    /** Direction of s; the coordinate is the product of point and direction divided by its square, so that the
     * length of the direction is the length of one repetition. */
    SoSFVec3f directionS{this, "directionS", SbVec3f(1, 0, 0)};
    SoSFVec3f directionT{this, "directionT", SbVec3f(0, 1, 0)};
};
