#pragma once

#include <plotkit/scene/Illumination.h>
#include <plotkit/scene/SurfacePoint.h>
#include <plotkit/scene/SurfaceTexture.h>

/** Gives the points of a shape their colours, as the drawing of the shape does. */
class SurfaceShader {
public:
    explicit SurfaceShader(const SoState& state);

    /** Whether both sides of the surface are lit alike. */
    void setTwoSided(bool isTwoSided) { m_illumination.setTwoSided(isTwoSided); }
    /** Points without a normal, and shapes without a light model, have their plain colour. */
    PageColor color(const SurfacePoint& point, bool isLit = true) const;
    /** Unit direction from a point to the eye. */
    SbVec3f towardsEye(const SbVec3f& place) const { return m_illumination.towardsEye(place); }
    const SurfaceTexture& texture() const { return m_texture; }
    /** Whether the colour may change along a straight line in more than one direction: a highlight, a picture. */
    bool isDetailed() const;

private:
    Illumination m_illumination;
    SurfaceTexture m_texture;
    SurfaceMaterial m_material;
    bool m_isLit;
};
