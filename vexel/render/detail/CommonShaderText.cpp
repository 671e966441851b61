#include <vexel/render/detail/ShaderTexts.h>

namespace vexel {

const char* const CommonShaderText = R"(
#define WIDE_LINES 2
#define POINTS 3
#define OPAQUE 0
#define LAYER 2
#define ONE_COLOR 3
#define LIGHTS (DIRECTIONAL + POINT + SPOT)
#define NEEDS_PLACE (SHINY + FACET_NORMALS + POINT + SPOT + FOG + BUMPS > 0)

layout(std140) uniform Frame {
    mat4 viewProjection;
    mat4 view;
    vec4 origin;    // all places in the shaders are relative to it: near the eye, so that they are exact there
    vec4 eye;       // place (w 1), or direction towards the viewer (w 0)
    vec4 viewport;  // x, y, width, height
};

struct Light {
    vec4 color;
    vec4 place;     // w: cosine of the cut-off angle
    vec4 direction; // towards where the light goes; w: drop-off exponent
};

layout(std140) uniform Surroundings {
    vec4 ambient;
    vec4 attenuation;
    vec4 fogColor;  // w: visibility
    Light lights[8];
    vec4 clipPlanes[6];
};

float clipDistance(int plane, vec4 place)
{
    return dot(clipPlanes[plane], place + vec4(origin.xyz, 0.0));
}

vec4 unpackColor(uint c)
{
    return vec4(c & 255u, (c >> 8) & 255u, (c >> 16) & 255u, c >> 24) * (1.0 / 255.0);
}
)";

const char* const SurfaceShaderText = R"(
#if LIT && !FACET_NORMALS
    vec3 normal;
#endif
#if NEEDS_PLACE
    vec3 place;
#endif
#if VERTEX_COLORS
    vec4 color;
#endif
$each texture
    vec3 coordinates@;
$end
#if OUTPUT != ONE_COLOR
    flat vec4 base; // diffuse colour and opacity
    flat vec3 glow; // what is seen without any lamp
#if SHINY
    flat vec4 shine; // w: shininess
#endif
#endif
#if TOPOLOGY == WIDE_LINES
    noperspective vec3 stroke; // pixels along and across the line, and its length
#endif
#if SIGNS
    flat uvec4 sign; // three rows of nine bits each; w: its size
    flat vec2 middle; // of the sign, in pixels
#endif
#if OUTPUT == ONE_COLOR
    float unused; // a block must not be empty
#endif
)";

} // namespace vexel
