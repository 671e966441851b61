#pragma once

#include <vexel/base/SbVec3f.h>

namespace vexel {

/** Surface colours of one packet; components from 0 to 1, kept with eight bits each. */
struct RenderMaterial {
    SbVec3f ambient{0.2f, 0.2f, 0.2f};
    SbVec3f diffuse{0.8f, 0.8f, 0.8f};
    SbVec3f specular{0, 0, 0};
    SbVec3f emissive{0, 0, 0};
    float shininess = 0.2f;    ///< 0 to 1, sharper towards 1
    float transparency = 0.0f; ///< 0 opaque, 1 invisible

    bool isTransparent() const { return transparency > 0; }
};

} // namespace vexel
