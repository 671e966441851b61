#include <vexel/actions/detail/SurroundingsCache.h>

#include <vexel/nodes/SoDirectionalLight.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoPointLight.h>
#include <vexel/nodes/SoSpotLight.h>
#include <vexel/render/RenderSurroundings.h>
#include <vexel/state/SoState.h>

namespace vexel {

struct SurroundingsCache::Recipe {
    std::vector<SoLightState> lights;
    std::vector<SbUniqueId> ids; // of the lights and of the environment
    std::vector<SbVec4f> planes;
    const SoEnvironment* environment = nullptr;
    float depth = 0; // for fog that reaches to the end of the view
    std::weak_ptr<RenderSurroundings> result;

    bool operator==(const Recipe& other) const
    {
        if (ids != other.ids || planes != other.planes || depth != other.depth)
            return false;
        for (std::size_t i = 0; i < lights.size(); ++i) {
            if (lights[i].toWorld != other.lights[i].toWorld)
                return false;
        }
        return true;
    }
};

namespace {

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

RenderLight lightOf(const SoLightState& state)
{
    RenderLight result;
    const SoLight& light = *state.light;
    result.color = SbVec3f(light.color.getValue()) * light.intensity.getValue();
    if (light.isOfType(SoDirectionalLight::getClassTypeId())) {
        const auto& sun = static_cast<const SoDirectionalLight&>(light);
        result.direction = turned(sun.direction.getValue(), state.toWorld);
    } else if (light.isOfType(SoPointLight::getClassTypeId())) {
        const auto& bulb = static_cast<const SoPointLight&>(light);
        result.kind = RenderLight::Kind::Point;
        result.position = placed(bulb.location.getValue(), state.toWorld);
    } else if (light.isOfType(SoSpotLight::getClassTypeId())) {
        const auto& spot = static_cast<const SoSpotLight&>(light);
        result.kind = RenderLight::Kind::Spot;
        result.position = placed(spot.location.getValue(), state.toWorld);
        result.direction = turned(spot.direction.getValue(), state.toWorld);
        result.cutOffAngle = spot.cutOffAngle.getValue();
        result.dropOffRate = spot.dropOffRate.getValue();
    }
    return result;
}

void addEnvironment(const SoEnvironment& from, float depth, RenderSurroundings::Values& values)
{
    values.ambient = SbVec3f(from.ambientColor.getValue()) * from.ambientIntensity.getValue();
    const SbVec3f& loss = from.attenuation.getValue();
    values.attenuation = {loss[0], loss[1], loss[2]};
    values.fog.kind = static_cast<RenderFog::Kind>(from.fogType.getValue());
    values.fog.color = from.fogColor.getValue();
    values.fog.visibility = from.fogVisibility.getValue() > 0 ? from.fogVisibility.getValue() : depth;
}

template <class Recipe>
RenderSurroundings::Values valuesOf(const Recipe& recipe)
{
    RenderSurroundings::Values values;
    for (const SoLightState& light : recipe.lights)
        values.lights.push_back(lightOf(light));
    values.clipPlanes = recipe.planes;
    if (recipe.environment)
        addEnvironment(*recipe.environment, recipe.depth, values);
    return values;
}

std::size_t hashOf(const std::vector<SbUniqueId>& ids, std::size_t numPlanes)
{
    std::size_t hash = numPlanes;
    for (const SbUniqueId id : ids)
        hash = (hash ^ id) * 0x9e3779b97f4a7c15u;
    return hash;
}

} // namespace

SurroundingsCache::SurroundingsCache() = default;

SurroundingsCache::~SurroundingsCache() = default;

std::shared_ptr<RenderSurroundings> SurroundingsCache::get(const SoState& state)
{
    auto recipe = std::make_unique<Recipe>();
    for (int i = 0; i < state->numLights; ++i) {
        recipe->lights.push_back(state.getLight(i));
        recipe->ids.push_back(state.getLight(i).light->getNodeId());
    }
    for (int i = 0; i < state->numClipPlanes; ++i) {
        const SbPlane& plane = state.getClipPlane(i).plane;
        const SbVec3f& normal = plane.getNormal();
        recipe->planes.push_back(SbVec4f(normal[0], normal[1], normal[2], -plane.getDistanceFromOrigin()));
    }
    if (state->environment) {
        recipe->environment = static_cast<const SoEnvironment*>(state->environment);
        recipe->ids.push_back(state->environment->getNodeId());
        recipe->depth = state->viewVolume.getNearDist() + state->viewVolume.getDepth();
    }

    const std::size_t hash = hashOf(recipe->ids, recipe->planes.size());
    const auto [first, last] = m_recipes.equal_range(hash);
    for (auto kept = first; kept != last;) {
        if (kept->second->result.expired()) {
            kept = m_recipes.erase(kept);
            continue;
        }
        if (*kept->second == *recipe)
            return kept->second->result.lock();
        ++kept;
    }
    auto result = std::make_shared<RenderSurroundings>(valuesOf(*recipe));
    recipe->result = result;
    m_recipes.emplace(hash, std::move(recipe));
    return result;
}

void SurroundingsCache::refresh()
{
    for (auto recipe = m_recipes.begin(); recipe != m_recipes.end();) {
        const std::shared_ptr<RenderSurroundings> result = recipe->second->result.lock();
        if (!result) {
            recipe = m_recipes.erase(recipe);
            continue;
        }
        result->set(valuesOf(*recipe->second));
        ++recipe;
    }
}

} // namespace vexel
