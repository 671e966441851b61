#pragma once

#include <vexel/nodes/SoTextureCoordinateFunction.h>

/** Makes the texture appear as the reflection of a far surrounding. */
class VEXEL_API SoTextureCoordinateEnvironment : public SoTextureCoordinateFunction {
    SO_NODE(SoTextureCoordinateEnvironment, SoTextureCoordinateFunction)
};
