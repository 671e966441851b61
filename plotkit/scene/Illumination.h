#pragma once

#include <plotkit/picture/PictureSink.h>
#include <vexel/base/SbColor.h>

#include <vector>

class SoState;

/** What a surface is made of at one of its points. */
struct SurfaceMaterial {
    SbVec3f ambient;
    SbVec3f diffuse;
    SbVec3f specular;
    SbVec3f emissive;
    float shininess = 0;
    float alpha = 1;

    /** A material of the state by its index. */
    static SurfaceMaterial of(const SoState& state, int index);
};

/** The lights, the fog and the eye of one place in the graph: what colour a point of a surface there has. */
class Illumination {
public:
    explicit Illumination(const SoState& state);

    /** @param normal  unit length; turned to the eye when both sides of the surface are seen */
    PageColor shade(const SurfaceMaterial& material, const SbVec3f& place, SbVec3f normal) const;
    /** The colour without light, but with fog. */
    PageColor plain(const SurfaceMaterial& material, const SbVec3f& place) const;

    void setTwoSided(bool isTwoSided) { m_isTwoSided = isTwoSided; }
    /** Unit direction from a point to the eye. */
    SbVec3f towardsEye(const SbVec3f& place) const;

private:
    /** Directional lights are infinitely far; spots shine into a cone. */
    struct Lamp {
        SbVec3f color;
        SbVec3f position;
        SbVec3f direction;
        bool isFar = false;
        float coneCosine = -1;
        float dropOff = 0;
    };

    void addFog(SbVec3f& color, const SbVec3f& place) const;
    /** Colour that arrives at a point; `towards` receives the unit direction that it comes from. */
    SbVec3f arriving(const Lamp& lamp, const SbVec3f& place, SbVec3f& towards) const;

    std::vector<Lamp> m_lamps;
    SbVec3f m_ambient{0.2f, 0.2f, 0.2f};
    SbVec3f m_attenuation{0, 0, 1};
    SbVec3f m_eye;
    SbVec3f m_forward;
    bool m_isPerspective = false;
    bool m_isTwoSided = true;
    int m_fogType = 0;
    SbVec3f m_fogColor;
    float m_fogVisibility = 0;
};
