#pragma once

#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoCamera.h>

/** A camera for which what is farther is smaller. */
class VEXEL_API SoPerspectiveCamera : public SoCamera {
    SO_NODE(SoPerspectiveCamera, SoCamera)
public:
    /** Angle of the view from bottom to top, in radians. */
    SoSFFloat heightAngle{this, "heightAngle", 0.785398163f};

    void scaleHeight(float factor) override;
    using SoCamera::getViewVolume;
    SbViewVolume getViewVolume(float aspect = 0) const override;

protected:
    void viewSphere(const SbVec3f& center, float radius, float aspect, float slack) override;
};
