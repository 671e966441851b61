#pragma once

#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoCamera.h>

/** A camera for which all is of the same size at any distance. */
class VEXEL_API SoOrthographicCamera : public SoCamera {
    SO_NODE(SoOrthographicCamera, SoCamera)
public:
    /** Height of the view in units of the space that the camera stands in. */
    SoSFFloat height{this, "height", 2};

    void scaleHeight(float factor) override;
    using SoCamera::getViewVolume;
    SbViewVolume getViewVolume(float aspect = 0) const override;

protected:
    void viewSphere(const SbVec3f& center, float radius, float aspect, float slack) override;
};
