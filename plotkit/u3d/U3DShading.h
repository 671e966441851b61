#pragma once

#include <plotkit/u3d/U3DBlocks.h>
#include <plotkit/u3d/U3DNames.h>
#include <vexel/base/SbVec3f.h>

#include <algorithm>
#include <map>
#include <vector>

/** A part of a colour in the range from 0 to 1; 0 for what is no number. */
inline float u3dInRange(float value)
{
    return value > 0 ? std::min(value, 1.0f) : 0;
}

/** How a surface or a line looks: a material, and how light and colours of vertices count. */
struct U3DShading {
    std::string name; ///< the wanted one
    SbVec3f ambient;
    SbVec3f diffuse;
    SbVec3f specular;
    SbVec3f emissive;
    float shininess = 0;
    float opacity = 1;
    bool isLit = true;
    bool hasVertexColors = false;
};

/** The shaders and materials of a document; each that looks alike is kept once. */
class U3DShadingPalette {
public:
    /** The name of the shader. */
    const std::string& add(const U3DShading& shading);

    /** Shaders, and then materials. */
    U3DBytes declarations() const;

private:
    U3DNames m_names;
    std::map<std::vector<float>, std::string> m_byValues;
    U3DBytes m_shaders;
    U3DBytes m_materials;
};
