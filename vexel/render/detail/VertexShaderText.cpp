#include <vexel/render/detail/ShaderTexts.h>

namespace vexel {

const char* const VertexShaderText = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec4 color;
layout(location = 3) in vec3 coordinates;
layout(location = 4) in vec4 rowX;
layout(location = 5) in vec4 rowY;
layout(location = 6) in vec4 rowZ;
layout(location = 7) in uvec4 material;
#if SIGNS
layout(location = 8) in uvec4 sign;
#endif

uniform float pointSize;
$each texture
uniform mat4 textureMatrix@;
uniform vec4 texturePlanes@[2];
$end

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

/** Where in a picture of all that surrounds the shape the viewer sees the surface look. */
vec2 mirrored(vec4 world)
{
    vec3 n = normalize(mat3(view) * worldNormal(normal));
    vec3 r = reflect(normalize((view * world).xyz), n);
    return r.xy / (2.0 * length(r + vec3(0.0, 0.0, 1.0))) + 0.5;
}

void main()
{
    vec4 local = vec4(position, 1.0);
    vec4 world = vec4(dot(rowX.xyz, position), dot(rowY.xyz, position), dot(rowZ.xyz, position), 1.0);
    world.xyz += vec3(rowX.w, rowY.w, rowZ.w) - origin.xyz;
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
$each texture
    vec4 found@ = vec4(coordinates, 1.0);
#if COORDINATES@ == 1
    found@ = vec4(dot(texturePlanes@[0], local), dot(texturePlanes@[1], local), 0.0, 1.0);
#elif COORDINATES@ == 2
    found@ = vec4(mirrored(world), 0.0, 1.0);
#endif
    found@ = textureMatrix@ * found@;
    surface.coordinates@ = found@.xyz / found@.w;
$end
#if OUTPUT != ONE_COLOR
    surface.base = unpackColor(material.x);
    surface.glow = unpackColor(material.z).rgb;
#if LIT
    surface.glow += unpackColor(material.y).rgb * ambient.rgb;
#endif
#if SHINY
    surface.shine = unpackColor(material.w);
#endif
#endif
#if SIGNS
    // A pixel more on each side: where exactly the square of a point ends is not the same everywhere.
    gl_PointSize = float(sign.w) + 2.0;
    surface.sign = sign;
    // In the middle of a pixel, so that the pixels of the sign are those of the screen.
    vec2 extent = 0.5 * viewport.zw;
    vec2 place = floor((gl_Position.xy / gl_Position.w + 1.0) * extent) + 0.5;
    surface.middle = viewport.xy + place;
    if (gl_Position.w > 0.0)
        gl_Position.xy = (place - extent) / extent * gl_Position.w;
#elif TOPOLOGY == POINTS
    gl_PointSize = pointSize;
#endif
#if TOPOLOGY == WIDE_LINES
    worldPlace = world;
#else
#if CLIP_PLANES
    for (int i = 0; i < CLIP_PLANES; ++i)
        gl_ClipDistance[i] = clipDistance(i, world);
#endif
#endif
#if OUTPUT == ONE_COLOR
    surface.unused = 0.0;
#endif
}
)";

const char* const GeometryShaderText = R"(
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
$each texture
    surface.coordinates@ = ends[end].coordinates@;
$end
#if OUTPUT != ONE_COLOR
    surface.base = ends[end].base;
    surface.glow = ends[end].glow;
#if SHINY
    surface.shine = ends[end].shine;
#endif
#endif
    surface.stroke = stroke;
#if CLIP_PLANES
    for (int i = 0; i < CLIP_PLANES; ++i)
        gl_ClipDistance[i] = mix(clipDistance(i, worldPlace[end]), clipDistance(i, worldPlace[1 - end]), shift);
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

} // namespace vexel
