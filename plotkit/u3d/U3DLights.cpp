#include "U3DLights.h"

#include <vexel/base/SbRotation.h>
#include <vexel/nodes/SoDirectionalLight.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoPointLight.h>
#include <vexel/nodes/SoSpotLight.h>
#include <vexel/state/SoState.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr float Degrees_per_radian = 57.2957795f;
/** Ambient light of graphs without an environment node. */
constexpr float Default_ambient = 0.2f;

SbVec3f inRange(const SbColor& color)
{
    return {u3dInRange(color[0]), u3dInRange(color[1]), u3dInRange(color[2])};
}

float positive(float value)
{
    return value > 0 && std::isfinite(value) ? value : 0;
}

const SoEnvironment* environmentOf(const SoState& state)
{
    return static_cast<const SoEnvironment*>(state->environment);
}

SbMatrix placed(const SbVec3f& direction, const SbVec3f& location)
{
    SbMatrix turn;
    if (direction.length() > 0)
        turn.setRotate(SbRotation(SbVec3f(0, 0, -1), direction));
    SbMatrix move;
    move.setTranslate(location);
    return turn * move;
}

} // namespace

U3DLight u3dLight(const SoLight& light, const SoState& state)
{
    U3DLight result;
    result.color = inRange(light.color.getValue());
    result.intensity = positive(light.intensity.getValue());
    if (light.isOfType(SoDirectionalLight::getClassTypeId()))
        return result;
    if (const SoEnvironment* const environment = environmentOf(state)) {
        const SbVec3f& loss = environment->attenuation.getValue();
        result.attenuation = SbVec3f(positive(loss[2]), positive(loss[1]), positive(loss[0]));
    }
    result.type = U3DLight::Point;
    if (light.isOfType(SoSpotLight::getClassTypeId())) {
        const auto& spot = static_cast<const SoSpotLight&>(light);
        result.type = U3DLight::Spot;
        result.coneAngle = std::min(positive(2 * spot.cutOffAngle.getValue() * Degrees_per_radian), 180.0f);
        result.decays = spot.dropOffRate.getValue() > 0;
    }
    return result;
}

SbMatrix u3dLightPlace(const SoLight& light)
{
    if (light.isOfType(SoDirectionalLight::getClassTypeId()))
        return placed(static_cast<const SoDirectionalLight&>(light).direction.getValue(), SbVec3f(0, 0, 0));
    if (light.isOfType(SoSpotLight::getClassTypeId())) {
        const auto& spot = static_cast<const SoSpotLight&>(light);
        return placed(spot.direction.getValue(), spot.location.getValue());
    }
    if (light.isOfType(SoPointLight::getClassTypeId()))
        return placed(SbVec3f(0, 0, 0), static_cast<const SoPointLight&>(light).location.getValue());
    return {};
}

U3DLight u3dAmbientLight(const SoState& state)
{
    U3DLight light;
    light.type = U3DLight::Ambient;
    light.color = SbVec3f(1, 1, 1);
    light.intensity = Default_ambient;
    if (const SoEnvironment* const environment = environmentOf(state)) {
        light.color = inRange(environment->ambientColor.getValue());
        light.intensity = positive(environment->ambientIntensity.getValue());
    }
    return light;
}
