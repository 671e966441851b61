#include "SurfaceShader.h"

#include <vexel/nodes/SoLightModel.h>
#include <vexel/state/SoState.h>

SurfaceShader::SurfaceShader(const SoState& state)
    : m_illumination(state), m_texture(state), m_material(SurfaceMaterial::of(state, 0)),
      m_isLit(state->lightModel != SoLightModel::BASE_COLOR)
{
}

PageColor SurfaceShader::color(const SurfacePoint& point, bool isLit) const
{
    SurfaceMaterial material = m_material;
    material.diffuse = SbVec3f(point.base[0], point.base[1], point.base[2]);
    material.alpha = point.base[3];
    PageColor color;
    if (m_isLit && isLit) {
        SbVec3f normal = point.normal;
        normal.normalize();
        color = m_illumination.shade(material, point.place, normal);
    } else {
        color = m_illumination.plain(material, point.place);
    }
    return m_texture ? m_texture.applyTo(color, point.textureCoordinate) : color;
}

bool SurfaceShader::isDetailed() const
{
    return m_texture || (m_isLit && m_material.specular != SbVec3f(0, 0, 0));
}
