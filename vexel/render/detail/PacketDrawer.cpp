#include <vexel/render/detail/PacketDrawer.h>

#include <algorithm>
#include <tuple>

#include <epoxy/gl.h>

#include <vexel/render/RenderSurroundings.h>
#include <vexel/render/detail/DrawListData.h>
#include <vexel/render/detail/ShaderSource.h>

namespace vexel {

namespace {

void enable(GLenum capability, bool on)
{
    if (on)
        glEnable(capability);
    else
        glDisable(capability);
}

void applyDepth(const RenderStyle& style, const DrawPass& pass)
{
    const GLenum functions[] = {GL_NEVER, GL_ALWAYS, GL_LESS, GL_LEQUAL, GL_EQUAL, GL_GEQUAL, GL_GREATER, GL_NOTEQUAL};
    enable(GL_DEPTH_TEST, pass.depthTest.value_or(style.depthTest));
    glDepthMask(pass.depthWrite.value_or(style.depthWrite));
    glDepthFunc(functions[static_cast<int>(style.depthFunction)]);
    glDepthRange(style.depthRange[0], style.depthRange[1]);
}

void applyFaces(const RenderStyle& style, bool mirrored)
{
    enable(GL_CULL_FACE, style.cull != RenderStyle::Cull::None);
    glCullFace(style.cull == RenderStyle::Cull::Front ? GL_FRONT : GL_BACK);
    glFrontFace(mirrored ? GL_CW : GL_CCW);
    enable(GL_POLYGON_OFFSET_FILL, style.offsetFactor != 0 || style.offsetUnits != 0);
    glPolygonOffset(style.offsetFactor, style.offsetUnits);
}

float lineWidthOf(const RenderStyle& style, const DrawPass& pass)
{
    return pass.lineWidth > 0 ? pass.lineWidth : style.lineWidth;
}

unsigned linePatternOf(const RenderStyle& style, const DrawPass& pass)
{
    return pass.linePattern.value_or(style.linePattern);
}

GeometryBuffers::Part partToDraw(RenderPrimitive primitive, RenderStyle::Draw style)
{
    if (style == RenderStyle::Draw::Points)
        return primitive == RenderPrimitive::Points ? GeometryBuffers::Part::Primitives
                                                    : GeometryBuffers::Part::Vertices;
    if (style == RenderStyle::Draw::Lines && primitive == RenderPrimitive::Triangles)
        return GeometryBuffers::Part::Edges;
    return GeometryBuffers::Part::Primitives;
}

ProgramKey::Topology topologyOf(RenderPrimitive primitive, GeometryBuffers::Part part, const RenderStyle& style,
                                const DrawPass& pass)
{
    if (part == GeometryBuffers::Part::Vertices || primitive == RenderPrimitive::Points)
        return ProgramKey::Points;
    if (part == GeometryBuffers::Part::Primitives && primitive == RenderPrimitive::Triangles)
        return ProgramKey::Triangles;
    // Core profiles draw lines of one pixel only; wider ones and patterns are made of triangles.
    return lineWidthOf(style, pass) > 1 || linePatternOf(style, pass) != 0xffff ? ProgramKey::WideLines
                                                                                : ProgramKey::ThinLines;
}

TextureKnob knobFor(const RenderTexture& texture, bool lit)
{
    // Without light there is nothing that a bump could change.
    if (!texture.image || (texture.model == RenderTexture::Model::Bump && !lit))
        return {};
    return {static_cast<std::uint8_t>(texture.image->depth() > 1 ? 3 : 2), static_cast<std::uint8_t>(texture.model),
            static_cast<std::uint8_t>(texture.coordinates)};
}

static_assert(static_cast<int>(RenderTexture::Model::Bump) == TextureKnob::Bump, "the shaders know this number");

} // namespace

bool PacketDrawer::Bound::operator==(const Bound& other) const
{
    return std::tie(state, shiny, mirrored, normals, colors, signs, primitive) ==
           std::tie(other.state, other.shiny, other.mirrored, other.normals, other.colors, other.signs,
                    other.primitive);
}

PacketDrawer::PacketDrawer(GeometryStore& geometries, ProgramCache& programs, TextureStore& textures,
                           SurroundingsStore& surroundings)
    : m_geometries(geometries), m_programs(programs), m_textures(textures), m_surroundings(surroundings)
{
}

void PacketDrawer::setCamera(const Camera& camera)
{
    if (!m_frameBlock)
        glGenBuffers(1, &m_frameBlock);
    glBindBuffer(GL_UNIFORM_BUFFER, m_frameBlock);
    glBufferData(GL_UNIFORM_BUFFER, sizeof camera, &camera, GL_STREAM_DRAW);
    glBindBufferBase(GL_UNIFORM_BUFFER, FrameBinding, m_frameBlock);
    glViewport(static_cast<GLint>(camera.viewport[0]), static_cast<GLint>(camera.viewport[1]),
               static_cast<GLsizei>(camera.viewport[2]), static_cast<GLsizei>(camera.viewport[3]));
}

ProgramKey PacketDrawer::keyFor(const Bound& bound, const RenderState& state, Part part, const DrawPass& pass) const
{
    const RenderStyle& style = state.style;
    ProgramKey key;
    const ProgramKey::Topology topology = topologyOf(bound.primitive, part, style, pass);
    key[ProgramKnob::Topology] = topology;
    key[ProgramKnob::Output] = pass.output;
    key[ProgramKnob::Multisampled] = pass.multisampled;
    key[ProgramKnob::Signs] = bound.primitive == RenderPrimitive::Points && bound.signs;
    key[ProgramKnob::RoundPoints] = topology == ProgramKey::Points && style.roundPoints && !key[ProgramKnob::Signs];
    if (pass.output != ProgramKey::OneColor) {
        const bool surface = topology == ProgramKey::Triangles;
        key[ProgramKnob::Lit] = style.lit && pass.lighting && (surface || bound.normals);
        key[ProgramKnob::TwoSided] = key[ProgramKnob::Lit] && style.twoSided && surface;
        key[ProgramKnob::FacetNormals] = key[ProgramKnob::Lit] && surface && (style.flat || !bound.normals);
        key[ProgramKnob::VertexColors] = bound.colors;
        key[ProgramKnob::Shiny] = key[ProgramKnob::Lit] && bound.shiny;
        for (std::size_t i = 0; pass.textures && i < state.textures.size() && i < ProgramKey::MaxTextures; ++i)
            key.setTexture(static_cast<int>(i), knobFor(state.textures[i], key[ProgramKnob::Lit]));
    }
    SurroundingsStore::describe(state.surroundings.get(), key);
    return key;
}

void PacketDrawer::applyState(const RenderState& state, const Bound& bound, const DrawPass& pass) const
{
    applyDepth(state.style, pass);
    applyFaces(state.style, bound.mirrored);
    const std::size_t planes = state.surroundings ? state.surroundings->values().clipPlanes.size() : 0;
    for (std::size_t i = 0; i < RenderSurroundings::MaxClipPlanes; ++i)
        enable(GL_CLIP_DISTANCE0 + i, i < planes);
}

void PacketDrawer::applyProgram(const RenderState& state, const ProgramKey& key, const DrawPass& pass)
{
    const Program& program = m_programs.program(key);
    const ProgramUniforms& uniforms = program.uniforms;
    glUseProgram(program.id);
    glUniform1f(uniforms.pointSize, std::max(state.style.pointSize, pass.lineWidth));
    glUniform1f(uniforms.lineWidth, lineWidthOf(state.style, pass));
    glUniform1ui(uniforms.linePattern, linePatternOf(state.style, pass));
    glUniform1f(uniforms.linePatternScale, pass.linePattern ? 1 : std::max<int>(state.style.linePatternScale, 1));
    glUniform4fv(uniforms.oneColor, 1, &pass.color[0]);
    m_surroundings.bind(state.surroundings.get());
    for (int i = 0; i < ProgramKey::MaxTextures; ++i) {
        if (key.texture(i).dimensions)
            applyTexture(state.textures[i], uniforms, i);
    }
}

void PacketDrawer::applyTexture(const RenderTexture& texture, const ProgramUniforms& uniforms, int number)
{
    const auto& places = uniforms.textures[number];
    const float planes[8] = {texture.planeS[0], texture.planeS[1], texture.planeS[2], texture.planeS[3],
                             texture.planeT[0], texture.planeT[1], texture.planeT[2], texture.planeT[3]};
    glUniformMatrix4fv(places.matrix, 1, GL_FALSE, &texture.matrix[0][0]);
    glUniform4fv(places.planes, 2, planes);
    glUniform3fv(places.blendColor, 1, &texture.blendColor[0]);
    glActiveTexture(GL_TEXTURE0 + ImageUnit + number);
    m_textures.bind(texture);
}

void PacketDrawer::draw(const DrawListData& list, const std::vector<DrawCommand>& commands, unsigned instanceBuffer,
                        const DrawPass& pass)
{
    std::optional<Bound> bound;
    Part part = Part::Primitives;
    glEnable(GL_PROGRAM_POINT_SIZE);
    for (const DrawCommand& command : commands) {
        const BatchKey& batch = command.batch->key();
        GeometryBuffers& buffers = m_geometries.buffers(*batch.geometry);
        const Bound wanted{batch.state,
                           batch.shiny,
                           batch.mirrored,
                           buffers.hasNormals(),
                           buffers.hasColors(),
                           buffers.hasSigns(),
                           batch.geometry->primitive()};
        if (!bound || !(*bound == wanted)) {
            const RenderState& state = list.state(*command.batch);
            const bool surface = wanted.primitive == RenderPrimitive::Triangles;
            part = partToDraw(wanted.primitive, surface ? pass.draw.value_or(state.style.draw) : state.style.draw);
            applyState(state, wanted, pass);
            applyProgram(state, keyFor(wanted, state, part, pass), pass);
            bound = wanted;
        }
        buffers.draw(*batch.geometry, part, instanceBuffer, command.first, command.count);
    }
}

void PacketDrawer::clear()
{
    glDeleteBuffers(1, &m_frameBlock);
    m_frameBlock = 0;
}

} // namespace vexel
