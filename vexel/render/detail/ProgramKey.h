#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vexel {

/** The choices that are made when a shader program is compiled rather than for every vertex or pixel. */
enum class ProgramKnob : std::uint8_t {
    Topology,
    Output,
    Lit,
    TwoSided,
    FacetNormals,
    VertexColors,
    Shiny,
    Texture0,
    Texture1,
    Texture2,
    Texture3,
    DirectionalLights,
    PointLights,
    SpotLights,
    ClipPlanes,
    Fog,
    RoundPoints,
    Signs,
    Multisampled,
    Count
};

/** How one texture is used; fits into one knob. */
struct TextureKnob {
    enum : std::uint8_t { Bump = 4 }; ///< the model that bends normals

    std::uint8_t dimensions = 0; ///< 0: no texture
    std::uint8_t model = 0;
    std::uint8_t coordinates = 0;
};

/** A value for every knob; each becomes a `#define` of the shader text. */
class ProgramKey {
public:
    enum Topology : std::uint8_t { Triangles, ThinLines, WideLines, Points };
    enum Output : std::uint8_t {
        Opaque,
        Blended,
        Layer, ///< one layer of depth peeling: drops what is not between the last layer and the opaque things
        OneColor
    };

    static constexpr std::size_t Count = static_cast<std::size_t>(ProgramKnob::Count);

    std::uint8_t& operator[](ProgramKnob knob) { return m_values[static_cast<std::size_t>(knob)]; }
    std::uint8_t operator[](ProgramKnob knob) const { return m_values[static_cast<std::size_t>(knob)]; }
    static constexpr int MaxTextures = 4;

    TextureKnob texture(int number) const
    {
        const std::uint8_t bits = m_values[static_cast<std::size_t>(ProgramKnob::Texture0) + number];
        return {static_cast<std::uint8_t>(bits & 3), static_cast<std::uint8_t>(bits >> 2 & 7),
                static_cast<std::uint8_t>(bits >> 5)};
    }

    void setTexture(int number, const TextureKnob& knob)
    {
        m_values[static_cast<std::size_t>(ProgramKnob::Texture0) + number] =
            static_cast<std::uint8_t>(knob.dimensions | knob.model << 2 | knob.coordinates << 5);
    }

    bool operator==(const ProgramKey& other) const { return m_values == other.m_values; }
    bool operator!=(const ProgramKey& other) const { return m_values != other.m_values; }
    bool operator<(const ProgramKey& other) const { return m_values < other.m_values; }

private:
    std::array<std::uint8_t, Count> m_values{};
};

} // namespace vexel
