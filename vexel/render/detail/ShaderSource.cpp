#include <vexel/render/detail/ShaderSource.h>

namespace vexel {

namespace {

const char* const KnobNames[ProgramKey::Count] = {
    "TOPOLOGY", "OUTPUT",      "LIT",   "TWO_SIDED",    "FACET_NORMALS", "VERTEX_COLORS",
    "SHINY",    "TEXTURE",     "MODEL", "COORDINATES",  "DIRECTIONAL",   "POINT",
    "SPOT",     "CLIP_PLANES", "FOG",   "ROUND_POINTS", "MULTISAMPLED"};

/** Names for the knob values that the shader texts compare with, and what all stages share. */
const char* const Common = R"(
#define WIDE_LINES 2
#define POINTS 3
#define OPAQUE 0
#define LAYER 2
#define ONE_COLOR 3
#define LIGHTS (DIRECTIONAL + POINT + SPOT)
#define NEEDS_PLACE (SHINY + FACET_NORMALS + POINT + SPOT + FOG > 0)

layout(std140) uniform Frame {
    mat4 viewProjection;
    mat4 view;
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

vec4 unpackColor(uint c)
{
    return vec4(c & 255u, (c >> 8) & 255u, (c >> 16) & 255u, c >> 24) * (1.0 / 255.0);
}
)";

/** What the vertex stage hands on; left out when the program has no use for it, since each costs per triangle. */
const char* const SurfaceMembers = R"(
#if LIT && !FACET_NORMALS
    vec3 normal;
#endif
#if NEEDS_PLACE
    vec3 place;
#endif
#if VERTEX_COLORS
    vec4 color;
#endif
#if TEXTURE
    vec3 coordinates;
#endif
#if OUTPUT != ONE_COLOR
    flat uvec4 material;
#endif
#if TOPOLOGY == WIDE_LINES
    noperspective vec3 stroke; // pixels along and across the line, and its length
#endif
#if OUTPUT == ONE_COLOR
    float unused; // a block must not be empty
#endif
)";

const char* const Vertex = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec4 color;
layout(location = 3) in vec3 coordinates;
layout(location = 4) in vec4 rowX;
layout(location = 5) in vec4 rowY;
layout(location = 6) in vec4 rowZ;
layout(location = 7) in uvec4 material;

uniform float pointSize;
uniform mat4 textureMatrix;
uniform vec4 texturePlanes[2];

#if TOPOLOGY != WIDE_LINES && CLIP_PLANES
out float gl_ClipDistance[CLIP_PLANES];
#endif

vec3 worldNormal(vec3 n)
{
    // The cofactor matrix is the transposed inverse times the determinant: good for singular matrices too.
    vec3 yz = cross(rowY.xyz, rowZ.xyz);
    vec3 w = vec3(dot(yz, n), dot(cross(rowZ.xyz, rowX.xyz), n), dot(cross(rowX.xyz, rowY.xyz), n));
    return dot(rowX.xyz, yz) < 0.0 ? -w : w;
}

void main()
{
    vec4 local = vec4(position, 1.0);
    vec4 world = vec4(dot(rowX, local), dot(rowY, local), dot(rowZ, local), 1.0);
    gl_Position = viewProjection * world;
#if LIT && !FACET_NORMALS
    surface.normal = worldNormal(normal);
#endif
#if NEEDS_PLACE
    surface.place = world.xyz;
#endif
#if VERTEX_COLORS
    surface.color = color;
#endif
#if TEXTURE
    vec4 found = vec4(coordinates, 1.0);
#if COORDINATES == 1
    found = vec4(dot(texturePlanes[0], local), dot(texturePlanes[1], local), 0.0, 1.0);
#elif COORDINATES == 2
    vec3 n = normalize(mat3(view) * worldNormal(normal));
    vec3 r = reflect(normalize((view * world).xyz), n);
    found = vec4(r.xy / (2.0 * length(r + vec3(0.0, 0.0, 1.0))) + 0.5, 0.0, 1.0);
#endif
    found = textureMatrix * found;
    surface.coordinates = found.xyz / found.w;
#endif
#if OUTPUT != ONE_COLOR
    surface.material = material;
#endif
#if TOPOLOGY == POINTS
    gl_PointSize = pointSize;
#endif
#if TOPOLOGY == WIDE_LINES
    worldPlace = world;
#else
#if CLIP_PLANES
    for (int i = 0; i < CLIP_PLANES; ++i)
        gl_ClipDistance[i] = dot(clipPlanes[i], world);
#endif
#endif
#if OUTPUT == ONE_COLOR
    surface.unused = 0.0;
#endif
}
)";

const char* const Geometry = R"(
layout(lines) in;
layout(triangle_strip, max_vertices = 4) out;

uniform float lineWidth;

#if CLIP_PLANES
out float gl_ClipDistance[CLIP_PLANES];
#endif

void corner(int end, vec4 clip, float shift, vec2 aside, vec3 stroke)
{
    vec2 offset = aside / (0.5 * viewport.zw);
    gl_Position = vec4(clip.xy + offset * clip.w, clip.zw);
#if LIT && !FACET_NORMALS
    surface.normal = ends[end].normal;
#endif
#if NEEDS_PLACE
    surface.place = ends[end].place;
#endif
#if VERTEX_COLORS
    surface.color = ends[end].color;
#endif
#if TEXTURE
    surface.coordinates = ends[end].coordinates;
#endif
#if OUTPUT != ONE_COLOR
    surface.material = ends[end].material;
#endif
    surface.stroke = stroke;
#if CLIP_PLANES
    for (int i = 0; i < CLIP_PLANES; ++i)
        gl_ClipDistance[i] = mix(dot(clipPlanes[i], worldPlace[end]), dot(clipPlanes[i], worldPlace[1 - end]), shift);
#endif
    EmitVertex();
}

void main()
{
    vec4 a = gl_in[0].gl_Position;
    vec4 b = gl_in[1].gl_Position;
    // Cut off what is behind the near plane: it has no place on the screen to measure the width at.
    float nearA = a.z + a.w;
    float nearB = b.z + b.w;
    if (nearA <= 0.0 && nearB <= 0.0)
        return;
    float shiftA = nearA < 0.0 ? nearA / (nearA - nearB) + 1e-5 : 0.0;
    float shiftB = nearB < 0.0 ? nearB / (nearB - nearA) + 1e-5 : 0.0;
    vec4 from = mix(a, b, shiftA);
    vec4 to = mix(b, a, shiftB);
    vec2 along = (to.xy / to.w - from.xy / from.w) * 0.5 * viewport.zw;
    float span = length(along);
    vec2 forward = span > 0.0 ? along / span : vec2(1.0, 0.0);
    float half_width = 0.5 * lineWidth;
    // Thick lines get round ends, so that consecutive ones join without notches.
    float cap = lineWidth >= 3.0 ? half_width : 0.0;
    vec2 aside = vec2(-forward.y, forward.x) * half_width;
    corner(0, from, shiftA, -forward * cap + aside, vec3(-cap, half_width, span));
    corner(0, from, shiftA, -forward * cap - aside, vec3(-cap, -half_width, span));
    corner(1, to, shiftB, forward * cap + aside, vec3(span + cap, half_width, span));
    corner(1, to, shiftB, forward * cap - aside, vec3(span + cap, -half_width, span));
    EndPrimitive();
}
)";

const char* const Fragment = R"(
uniform vec4 oneColor;
uniform vec3 blendColor;
uniform float lineWidth;
uniform uint linePattern;
uniform float linePatternScale;
#if TEXTURE == 2
uniform sampler2D image;
#define SAMPLE texture(image, surface.coordinates.xy)
#elif TEXTURE == 3
uniform sampler3D image;
#define SAMPLE texture(image, surface.coordinates)
#endif
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
    return n;
}

void addLight(vec3 color, vec3 n, vec3 towards, inout vec3 diffuse, inout vec3 shine)
{
    float slope = dot(n, towards);
    diffuse += color * max(slope, 0.0);
#if SHINY
    float glance = max(dot(n, normalize(towards + viewerDirection())), 0.0);
    float sharpness = max(float(surface.material.w >> 24) * (128.0 / 255.0), 1.0);
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
        vec3 path = lights[i].place.xyz - surface.place;
        addLight(lights[i].color.rgb * reach(path), n, normalize(path), diffuse, shine);
    }
#endif
#if SPOT
    for (int i = DIRECTIONAL + POINT; i < LIGHTS; ++i) {
        vec3 path = lights[i].place.xyz - surface.place;
        vec3 towards = normalize(path);
        float inside = dot(-towards, lights[i].direction.xyz);
        float cone = inside >= lights[i].place.w ? pow(max(inside, 1e-6), lights[i].direction.w) : 0.0;
        addLight(lights[i].color.rgb * reach(path) * cone, n, towards, diffuse, shine);
    }
#endif
    vec3 sum = unpackColor(surface.material.z).rgb + unpackColor(surface.material.y).rgb * ambient.rgb + base * diffuse;
#if SHINY
    sum += unpackColor(surface.material.w).rgb * shine;
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
#if OUTPUT == LAYER
    ivec2 pixel = ivec2(gl_FragCoord.xy - viewport.xy);
    if (gl_FragCoord.z <= texelFetch(layerDepth, pixel, DEPTH_PART).x || gl_FragCoord.z >= texelFetch(opaqueDepth, pixel, DEPTH_PART).x)
        discard;
#endif
#if OUTPUT == ONE_COLOR
    result = oneColor;
#else
    vec4 base = unpackColor(surface.material.x);
#if VERTEX_COLORS
    base = surface.color;
#endif
#if TEXTURE && MODEL != 0
    vec4 texel = SAMPLE;
#if MODEL == 3
    base = vec4(texel.rgb, base.a * texel.a);
#elif MODEL == 2
    base = vec4(mix(base.rgb, blendColor, texel.rgb), base.a * texel.a);
#endif
#endif
#if LIT
    result = vec4(illuminate(base.rgb), base.a);
#else
    result = vec4(base.rgb + unpackColor(surface.material.z).rgb, base.a);
#endif
#if TEXTURE && MODEL == 0
    result *= SAMPLE;
#elif TEXTURE && MODEL == 1
    result.rgb = mix(result.rgb, texel.rgb, texel.a);
#endif
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
#elif TEXTURE
    if (result.a == 0.0)
        discard;
#endif
#endif
}
)";

std::string block(const char* direction, const std::string& name)
{
    return std::string(direction) + " Surface {" + SurfaceMembers + "} " + name + ";\n";
}

} // namespace

ShaderSource::ShaderSource(const ProgramKey& key)
{
    std::string head = "#version 330 core\n";
    if (key[ProgramKnob::Multisampled])
        head += "#extension GL_ARB_sample_shading : enable\n";
    for (std::size_t knob = 0; knob < ProgramKey::Count; ++knob)
        head += std::string("#define ") + KnobNames[knob] + " " + std::to_string(key[static_cast<ProgramKnob>(knob)]) +
                "\n";
    head += Common;

    const bool wide = key[ProgramKnob::Topology] == ProgramKey::WideLines;
    vertex = head + block("out", "surface") + (wide ? "out vec4 worldPlace;\n" : "") + Vertex;
    if (wide)
        geometry = head + block("in", "ends[]") + block("out", "surface") + "in vec4 worldPlace[];\n" + Geometry;
    fragment = head + block("in", "surface") + Fragment;
}

} // namespace vexel
