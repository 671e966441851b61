#include <vexel/render/detail/ShaderTexts.h>

namespace vexel {

const char* const FragmentShaderText = R"(
uniform vec4 oneColor;
uniform float lineWidth;
uniform uint linePattern;
uniform float linePatternScale;
$each texture
#if DIMENSIONS@ == 3
uniform sampler3D image@;
#define TEXEL@ texture(image@, surface.coordinates@)
#else
uniform sampler2D image@;
#define TEXEL@ texture(image@, surface.coordinates@.xy)
#endif
uniform vec3 blendColor@;
$end
#if OUTPUT == LAYER
#if MULTISAMPLED
#define DEPTH_SAMPLER sampler2DMS
#define DEPTH_PART gl_SampleID
#else
#define DEPTH_SAMPLER sampler2D
#define DEPTH_PART 0
#endif
uniform DEPTH_SAMPLER layerDepth;
uniform DEPTH_SAMPLER opaqueDepth;
#endif

out vec4 result;

#if LIT
vec3 viewerDirection()
{
#if NEEDS_PLACE
    return normalize(eye.xyz - eye.w * surface.place);
#else
    return eye.xyz;
#endif
}

#if BUMPS
/** A normal given relative to the directions in which the texture runs. */
vec3 bent(vec3 n, vec2 at, vec3 relative)
{
    vec3 along = cross(dFdy(surface.place), n);
    vec3 across = cross(n, dFdx(surface.place));
    vec2 dx = dFdx(at);
    vec2 dy = dFdy(at);
    vec3 s = along * dx.x + across * dy.x;
    vec3 t = along * dx.y + across * dy.y;
    float longest = max(dot(s, s), dot(t, t));
    return longest > 0.0 ? normalize(mat3(s * inversesqrt(longest), t * inversesqrt(longest), n) * relative) : n;
}
#endif

vec3 surfaceNormal()
{
#if FACET_NORMALS
    vec3 n = normalize(cross(dFdx(surface.place), dFdy(surface.place)));
    if (dot(n, eye.xyz - eye.w * surface.place) < 0.0)
        n = -n;
#if !TWO_SIDED
    if (!gl_FrontFacing)
        n = -n;
#endif
#else
    vec3 n = normalize(surface.normal);
#if TWO_SIDED
    if (!gl_FrontFacing)
        n = -n;
#endif
#endif
$each texture
#if MODEL@ == 4
    n = bent(n, surface.coordinates@.xy, TEXEL@.xyz * 2.0 - 1.0);
#endif
$end
    return n;
}

void addLight(vec3 color, vec3 n, vec3 towards, inout vec3 diffuse, inout vec3 shine)
{
    float slope = dot(n, towards);
    diffuse += color * max(slope, 0.0);
#if SHINY
    float glance = max(dot(n, normalize(towards + viewerDirection())), 0.0);
    float sharpness = max(surface.shine.w * 128.0, 1.0);
    shine += slope > 0.0 ? color * pow(glance, sharpness) : vec3(0.0);
#endif
}

#if POINT + SPOT > 0
float reach(vec3 path)
{
    float d = length(path);
    return 1.0 / max(attenuation.x * d * d + attenuation.y * d + attenuation.z, 1e-6);
}
#endif

vec3 illuminate(vec3 base)
{
    vec3 n = surfaceNormal();
    vec3 diffuse = vec3(0.0);
    vec3 shine = vec3(0.0);
#if DIRECTIONAL
    for (int i = 0; i < DIRECTIONAL; ++i)
        addLight(lights[i].color.rgb, n, -lights[i].direction.xyz, diffuse, shine);
#endif
#if POINT
    for (int i = DIRECTIONAL; i < DIRECTIONAL + POINT; ++i) {
        vec3 path = lights[i].place.xyz - origin.xyz - surface.place;
        addLight(lights[i].color.rgb * reach(path), n, normalize(path), diffuse, shine);
    }
#endif
#if SPOT
    for (int i = DIRECTIONAL + POINT; i < LIGHTS; ++i) {
        vec3 path = lights[i].place.xyz - origin.xyz - surface.place;
        vec3 towards = normalize(path);
        float inside = dot(-towards, lights[i].direction.xyz);
        float cone = inside >= lights[i].place.w ? pow(max(inside, 1e-6), lights[i].direction.w) : 0.0;
        addLight(lights[i].color.rgb * reach(path) * cone, n, towards, diffuse, shine);
    }
#endif
    vec3 sum = surface.glow + base * diffuse;
#if SHINY
    sum += surface.shine.rgb * shine;
#endif
    return sum;
}
#endif

void main()
{
#if TOPOLOGY == WIDE_LINES
    float along = surface.stroke.x;
    if (lineWidth >= 3.0 && distance(vec2(along, surface.stroke.y), vec2(clamp(along, 0.0, surface.stroke.z), 0.0)) > 0.5 * lineWidth)
        discard;
    if ((linePattern >> (uint(max(along, 0.0) / linePatternScale) & 15u) & 1u) == 0u)
        discard;
#endif
#if TOPOLOGY == POINTS && ROUND_POINTS
    if (distance(gl_PointCoord, vec2(0.5)) > 0.5)
        discard;
#endif
#if SIGNS
    vec2 offset = (gl_FragCoord.xy - surface.middle) * vec2(1.0, -1.0);
    ivec2 cell = ivec2(floor(offset + 0.5 * float(surface.sign.w)));
    if (min(cell.x, cell.y) < 0 || max(cell.x, cell.y) >= int(surface.sign.w) || (surface.sign[cell.y / 3] >> uint(cell.y % 3 * 9 + cell.x) & 1u) == 0u)
        discard;
#endif
#if OUTPUT == LAYER
    ivec2 pixel = ivec2(gl_FragCoord.xy - viewport.xy);
    if (gl_FragCoord.z <= texelFetch(layerDepth, pixel, DEPTH_PART).x || gl_FragCoord.z >= texelFetch(opaqueDepth, pixel, DEPTH_PART).x)
        discard;
#endif
#if OUTPUT == ONE_COLOR
    result = oneColor;
#else
    vec4 base = surface.base;
#if VERTEX_COLORS
    base = surface.color;
#endif
#if LIT
    result = vec4(illuminate(base.rgb), base.a);
#else
    result = vec4(base.rgb + surface.glow, base.a);
#endif
$each texture
#if MODEL@ == 0
    result *= TEXEL@;
#elif MODEL@ < 4
    vec4 texel@ = TEXEL@;
#if MODEL@ == 1
    result.rgb = mix(result.rgb, texel@.rgb, texel@.a);
#elif MODEL@ == 2
    result = vec4(mix(result.rgb, blendColor@, texel@.rgb), result.a * texel@.a);
#else
    result = vec4(texel@.rgb, result.a * texel@.a);
#endif
#endif
$end
#if FOG
    float depth = max(-(view * vec4(surface.place, 1.0)).z, 0.0) / fogColor.w;
#if FOG == 1
    float clear = 1.0 - depth;
#elif FOG == 2
    float clear = exp(-5.545 * depth);
#else
    float clear = exp(-5.545 * depth * depth);
#endif
    result.rgb = mix(fogColor.rgb, result.rgb, clamp(clear, 0.0, 1.0));
#endif
#if OUTPUT == OPAQUE
    result.a = 1.0;
#else
    if (result.a == 0.0)
        discard;
#endif
#endif
}
)";

} // namespace vexel
