#include "Illumination.h"

#include <vexel/nodes/SoDirectionalLight.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoPointLight.h>
#include <vexel/nodes/SoSpotLight.h>
#include <vexel/state/SoState.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr float Sharpest = 128; ///< exponent of highlights and cones for a field's 1
constexpr float Fog_density = 5.545f;

SbVec3f product(const SbVec3f& a, const SbVec3f& b)
{
    return {a[0] * b[0], a[1] * b[1], a[2] * b[2]};
}

SbVec3f placed(const SbVec3f& point, const SbMatrix& matrix)
{
    SbVec3f result;
    matrix.multVecMatrix(point, result);
    return result;
}

SbVec3f turned(const SbVec3f& direction, const SbMatrix& matrix)
{
    SbVec3f result;
    matrix.multDirMatrix(direction, result);
    result.normalize();
    return result;
}

PageColor pageColor(const SbVec3f& color, float alpha)
{
    const auto part = [](float value) { return std::clamp(value, 0.0f, 1.0f); };
    return {part(color[0]), part(color[1]), part(color[2]), part(alpha)};
}

} // namespace

SurfaceMaterial SurfaceMaterial::of(const SoState& state, int index)
{
    const SoStateValues& values = *state;
    SurfaceMaterial material;
    // Further materials are colours and transparencies only.
    material.ambient = values.ambientColor.at(0);
    material.specular = values.specularColor.at(0);
    material.emissive = values.emissiveColor.at(0);
    material.shininess = values.shininess.at(0);
    SbColor diffuse = values.diffuseColor.at(index);
    float transparency = values.transparency.at(index);
    if (!values.packedColor.isEmpty())
        diffuse.setPackedValue(values.packedColor.at(index), transparency);
    material.diffuse = diffuse;
    material.alpha = 1 - transparency;
    return material;
}

Illumination::Illumination(const SoState& state)
    : m_eye(state->viewVolume.getProjectionPoint()), m_forward(state->viewVolume.getProjectionDirection()),
      m_isPerspective(state->viewVolume.getProjectionType() == SbViewVolume::PERSPECTIVE)
{
    for (int i = 0; i < state->numLights; ++i) {
        const SoLightState& placedLight = state.getLight(i);
        const SoLight& light = *placedLight.light;
        Lamp lamp;
        lamp.color = SbVec3f(light.color.getValue()) * light.intensity.getValue();
        if (light.isOfType(SoDirectionalLight::getClassTypeId())) {
            lamp.isFar = true;
            lamp.direction =
                turned(static_cast<const SoDirectionalLight&>(light).direction.getValue(), placedLight.toWorld);
        } else if (light.isOfType(SoPointLight::getClassTypeId())) {
            lamp.position = placed(static_cast<const SoPointLight&>(light).location.getValue(), placedLight.toWorld);
        } else if (light.isOfType(SoSpotLight::getClassTypeId())) {
            const auto& spot = static_cast<const SoSpotLight&>(light);
            lamp.position = placed(spot.location.getValue(), placedLight.toWorld);
            lamp.direction = turned(spot.direction.getValue(), placedLight.toWorld);
            lamp.coneCosine = std::cos(spot.cutOffAngle.getValue());
            lamp.dropOff = spot.dropOffRate.getValue() * Sharpest;
        }
        m_lamps.push_back(lamp);
    }
    const auto* const environment = static_cast<const SoEnvironment*>(state->environment);
    if (!environment)
        return;
    m_ambient = SbVec3f(environment->ambientColor.getValue()) * environment->ambientIntensity.getValue();
    m_attenuation = environment->attenuation.getValue();
    m_fogType = environment->fogType.getValue();
    m_fogColor = environment->fogColor.getValue();
    const float visibility = environment->fogVisibility.getValue();
    m_fogVisibility = visibility > 0 ? visibility : state->viewVolume.getNearDist() + state->viewVolume.getDepth();
}

SbVec3f Illumination::towardsEye(const SbVec3f& place) const
{
    SbVec3f direction = m_isPerspective ? m_eye - place : m_forward * -1.0f;
    direction.normalize();
    return direction;
}

SbVec3f Illumination::arriving(const Lamp& lamp, const SbVec3f& place, SbVec3f& towards) const
{
    if (lamp.isFar) {
        towards = lamp.direction * -1.0f;
        return lamp.color;
    }
    towards = lamp.position - place;
    const float distance = towards.normalize();
    const float loss = m_attenuation[0] * distance * distance + m_attenuation[1] * distance + m_attenuation[2];
    float part = 1 / std::max(loss, 1e-6f);
    if (lamp.coneCosine > -1) {
        const float inside = -towards.dot(lamp.direction);
        part *= inside >= lamp.coneCosine ? std::pow(std::max(inside, 1e-6f), lamp.dropOff) : 0;
    }
    return lamp.color * part;
}

PageColor Illumination::shade(const SurfaceMaterial& material, const SbVec3f& place, SbVec3f normal) const
{
    const SbVec3f eye = towardsEye(place);
    if (m_isTwoSided && normal.dot(eye) < 0)
        normal *= -1.0f;
    SbVec3f sum = material.emissive + product(material.ambient, m_ambient);
    for (const Lamp& lamp : m_lamps) {
        SbVec3f towards;
        const SbVec3f light = arriving(lamp, place, towards);
        const float slope = normal.dot(towards);
        if (slope <= 0)
            continue;
        sum += product(material.diffuse, light) * slope;
        SbVec3f half = towards + eye;
        half.normalize();
        const float glance = std::max(normal.dot(half), 0.0f);
        sum += product(material.specular, light) * std::pow(glance, std::max(material.shininess * Sharpest, 1.0f));
    }
    addFog(sum, place);
    return pageColor(sum, material.alpha);
}

PageColor Illumination::plain(const SurfaceMaterial& material, const SbVec3f& place) const
{
    SbVec3f color = material.diffuse + material.emissive;
    addFog(color, place);
    return pageColor(color, material.alpha);
}

void Illumination::addFog(SbVec3f& color, const SbVec3f& place) const
{
    if (m_fogType == SoEnvironment::NONE || m_fogVisibility <= 0)
        return;
    const float depth = std::max((place - m_eye).dot(m_forward), 0.0f) / m_fogVisibility;
    float clear = 1 - depth;
    if (m_fogType == SoEnvironment::FOG)
        clear = std::exp(-Fog_density * depth);
    else if (m_fogType == SoEnvironment::SMOKE)
        clear = std::exp(-Fog_density * depth * depth);
    clear = std::clamp(clear, 0.0f, 1.0f);
    color = m_fogColor * (1 - clear) + color * clear;
}
