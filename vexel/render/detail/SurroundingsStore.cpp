#include <vexel/render/detail/SurroundingsStore.h>

#include <algorithm>
#include <cmath>

#include <epoxy/gl.h>

#include <vexel/render/RenderSurroundings.h>
#include <vexel/render/detail/ProgramKey.h>
#include <vexel/render/detail/ShaderSource.h>

namespace vexel {

namespace {

/** Memory image of the shaders' uniform block. */
struct Block {
    float ambient[4] = {};
    float attenuation[4] = {};
    float fog[4] = {};
    struct {
        float color[4] = {};
        float place[4] = {};
        float direction[4] = {};
    } lights[RenderSurroundings::MaxLights];
    float clipPlanes[RenderSurroundings::MaxClipPlanes][4] = {};

    Block() = default;
    explicit Block(const RenderSurroundings::Values& values);
};

void put(float* to, const SbVec3f& from, float fourth)
{
    for (int i = 0; i < 3; ++i)
        to[i] = from[i];
    to[3] = fourth;
}

SbVec3f unit(const SbVec3f& v)
{
    const float length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    return length > 0 ? SbVec3f(v[0] / length, v[1] / length, v[2] / length) : SbVec3f(0, 0, -1);
}

Block::Block(const RenderSurroundings::Values& values)
{
    put(ambient, values.ambient, 0);
    std::copy(values.attenuation.begin(), values.attenuation.end(), attenuation);
    put(fog, values.fog.color, std::max(values.fog.visibility, 1e-6f));
    for (std::size_t i = 0; i < values.lights.size(); ++i) {
        const RenderLight& light = values.lights[i];
        put(lights[i].color, light.color, 0);
        put(lights[i].place, light.position, std::cos(light.cutOffAngle));
        put(lights[i].direction, unit(light.direction), light.dropOffRate * 128);
    }
    for (std::size_t i = 0; i < values.clipPlanes.size(); ++i) {
        for (int k = 0; k < 4; ++k)
            clipPlanes[i][k] = values.clipPlanes[i][k];
    }
}

void upload(GLuint& buffer, const Block& block)
{
    if (!buffer)
        glGenBuffers(1, &buffer);
    glBindBuffer(GL_UNIFORM_BUFFER, buffer);
    glBufferData(GL_UNIFORM_BUFFER, sizeof block, &block, GL_DYNAMIC_DRAW);
}

} // namespace

void SurroundingsStore::bind(const RenderSurroundings* surroundings)
{
    if (!surroundings) {
        if (!m_dark)
            upload(m_dark, Block());
        glBindBufferBase(GL_UNIFORM_BUFFER, SurroundingsBinding, m_dark);
        return;
    }
    Entry& entry = m_entries[surroundings->id()];
    if (entry.version != surroundings->version()) {
        upload(entry.buffer, Block(surroundings->values()));
        entry.version = surroundings->version();
    }
    glBindBufferBase(GL_UNIFORM_BUFFER, SurroundingsBinding, entry.buffer);
}

void SurroundingsStore::describe(const RenderSurroundings* surroundings, ProgramKey& key)
{
    if (!surroundings)
        return;
    const RenderSurroundings::Values& values = surroundings->values();
    const auto count = [&](RenderLight::Kind kind) {
        return static_cast<std::uint8_t>(std::count_if(values.lights.begin(), values.lights.end(),
                                                       [=](const RenderLight& light) { return light.kind == kind; }));
    };
    if (key[ProgramKnob::Lit]) {
        key[ProgramKnob::DirectionalLights] = count(RenderLight::Kind::Directional);
        key[ProgramKnob::PointLights] = count(RenderLight::Kind::Point);
        key[ProgramKnob::SpotLights] = count(RenderLight::Kind::Spot);
    }
    key[ProgramKnob::ClipPlanes] = static_cast<std::uint8_t>(values.clipPlanes.size());
    if (key[ProgramKnob::Output] != ProgramKey::OneColor)
        key[ProgramKnob::Fog] = static_cast<std::uint8_t>(values.fog.kind);
}

bool SurroundingsStore::drop(std::uint64_t id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return false;
    glDeleteBuffers(1, &found->second.buffer);
    m_entries.erase(found);
    return true;
}

void SurroundingsStore::clear()
{
    for (const auto& [id, entry] : m_entries)
        glDeleteBuffers(1, &entry.buffer);
    m_entries.clear();
    glDeleteBuffers(1, &m_dark);
    m_dark = 0;
}

} // namespace vexel
