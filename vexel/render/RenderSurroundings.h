#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec4f.h>
#include <vexel/base/VexelApi.h>

namespace vexel {

/** One light, in world space. */
struct RenderLight {
    enum class Kind : std::uint8_t { Directional, Point, Spot };

    Kind kind = Kind::Directional;
    SbVec3f color{1, 1, 1}; ///< colour times intensity
    SbVec3f position{0, 0, 0};
    SbVec3f direction{0, 0, -1};   ///< the way the light travels
    float cutOffAngle = 0.785398f; ///< half opening of a spot's cone, in radians
    float dropOffRate = 0;         ///< 0 even within the cone, 1 steepest
};

/** Fog that hides things with growing distance from the eye. */
struct RenderFog {
    enum class Kind : std::uint8_t { None, Haze, Fog, Smoke };

    Kind kind = Kind::None; ///< grows linearly, exponentially, with the square
    SbVec3f color{1, 1, 1};
    float visibility = 1; ///< distance at which everything is hidden
};

/**
 * What surrounds a group of packets: lights, clip planes, ambient light and fog. Many packets share one object;
 * changing it costs the same however many they are.
 */
class VEXEL_API RenderSurroundings {
public:
    static constexpr int MaxLights = 8;     ///< further lights are ignored
    static constexpr int MaxClipPlanes = 6; ///< further planes are ignored

    struct Values {
        std::vector<RenderLight> lights;
        std::vector<SbVec4f> clipPlanes;           ///< points with a*x + b*y + c*z + d < 0 in world space are cut away
        SbVec3f ambient{0.2f, 0.2f, 0.2f};         ///< colour times intensity
        std::array<float, 3> attenuation{0, 0, 1}; ///< factors of squared distance, distance, 1
        RenderFog fog;
    };

    explicit RenderSurroundings(Values values);
    ~RenderSurroundings();
    RenderSurroundings(const RenderSurroundings&) = delete;
    RenderSurroundings& operator=(const RenderSurroundings&) = delete;

    void set(Values values);
    const Values& values() const { return m_values; }

    /** Grows with every set(). */
    std::uint64_t version() const { return m_version; }
    std::uint64_t id() const { return m_id; }

private:
    Values m_values;
    std::uint64_t m_id;
    std::uint64_t m_version = 1;
};

} // namespace vexel
