#pragma once

#include <vexel/nodes/SoTextureCoordinateFunction.h>

/** Goes back to the texture coordinates that shapes have by themselves. */
class VEXEL_API SoTextureCoordinateDefault : public SoTextureCoordinateFunction {
    SO_NODE(SoTextureCoordinateDefault, SoTextureCoordinateFunction)
public:
    void doAction(SoAction& action) override;
};
