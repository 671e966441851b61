#include "KnownRanges.h"

#include <vexel/fields/SoFieldContainer.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoComplexity.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoLevelOfDetail.h>
#include <vexel/nodes/SoLight.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoPerspectiveCamera.h>
#include <vexel/nodes/SoRotationXYZ.h>
#include <vexel/nodes/SoShapeHints.h>
#include <vexel/nodes/SoSpotLight.h>
#include <vexel/nodes/SoTexture2Transform.h>

#include <cmath>

namespace {

const double Half_turn = std::acos(-1.0);

constexpr ValueRange Part{0, 1};
const ValueRange Quarter_turn{0, Half_turn / 2};
const ValueRange Up_to_half_turn{0, Half_turn};
const ValueRange Full_turn{-Half_turn, Half_turn};

struct KnownField {
    SoType (*owner)();
    const char* name;
    const ValueRange& range;
};

const KnownField Known_fields[] = {
    {SoMaterial::getClassTypeId, "shininess", Part},
    {SoMaterial::getClassTypeId, "transparency", Part},
    {SoComplexity::getClassTypeId, "value", Part},
    {SoComplexity::getClassTypeId, "textureQuality", Part},
    {SoEnvironment::getClassTypeId, "ambientIntensity", Part},
    {SoLight::getClassTypeId, "intensity", Part},
    {SoSpotLight::getClassTypeId, "dropOffRate", Part},
    {SoSpotLight::getClassTypeId, "cutOffAngle", Quarter_turn},
    {SoPerspectiveCamera::getClassTypeId, "heightAngle", Up_to_half_turn},
    {SoShapeHints::getClassTypeId, "creaseAngle", Up_to_half_turn},
    {SoRotationXYZ::getClassTypeId, "angle", Full_turn},
    {SoTexture2Transform::getClassTypeId, "rotation", Full_turn},
};

} // namespace

const ValueRange* KnownRanges::of(const SoField& field)
{
    const SoFieldContainer* const owner = field.getContainer();
    if (!owner)
        return nullptr;
    const SbName name = field.getName();
    for (const KnownField& known : Known_fields) {
        if (name == known.name && owner->isOfType(known.owner()))
            return &known.range;
    }
    return nullptr;
}
