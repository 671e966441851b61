#pragma once

#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFRotation.h>
#include <vexel/fields/SoMFVec3f.h>

/**
 * Makes rotations of axes and angles in radians, as many as the longer list has. The shorter one goes on with its last
 * value; an empty one counts as its default.
 */
class VEXEL_API SoComposeRotation : public SoEngine {
    SO_CONTAINER(SoComposeRotation, SoEngine)
public:
    SoMFVec3f axis{this, "axis", SbVec3f(0, 0, 1)};
    SoMFFloat angle{this, "angle", 0.0f};

    SoEngineOutput rotation{this, "rotation", SoMFRotation::getClassTypeId()};

    SoComposeRotation() = default;

protected:
    ~SoComposeRotation() override = default;

    void evaluate(const SoEngineOutput& output, SoField& target) override;
};
