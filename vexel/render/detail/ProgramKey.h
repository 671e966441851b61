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
    TextureDimensions,
    TextureModel,
    TextureCoordinates,
    DirectionalLights,
    PointLights,
    SpotLights,
    ClipPlanes,
    Fog,
    RoundPoints,
    Multisampled,
    Count
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
    bool operator==(const ProgramKey& other) const { return m_values == other.m_values; }
    bool operator!=(const ProgramKey& other) const { return m_values != other.m_values; }
    bool operator<(const ProgramKey& other) const { return m_values < other.m_values; }

private:
    std::array<std::uint8_t, Count> m_values{};
};

} // namespace vexel
