#pragma once

#include <vexel/base/SbRotation.h>
#include <vexel/base/SbVec3f.h>

class SoCamera;

/** Where a camera stands and how much it sees, to be remembered and gone back to. */
class CameraState {
public:
    CameraState() = default;
    explicit CameraState(const SoCamera& camera);

    void applyTo(SoCamera& camera) const;
    /** The state on the way from @p a (0) to @p b (1). */
    static CameraState between(const CameraState& a, const CameraState& b, float t);

    SbVec3f position;
    SbRotation orientation;
    float focalDistance = 1;
    float height = 1; ///< of orthographic cameras
};
