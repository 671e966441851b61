#pragma once

#include <vexel/base/SbRotation.h>
#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec3f.h>

class SoCamera;

/** Moves a camera as a hand would. Places on the screen count from -1 to 1 across the shorter side, from the middle. */
namespace CameraMotion {

/** Where the camera turns about: the point in its view at the focal distance. */
SbVec3f focalPoint(const SoCamera& camera);
/** Turns the camera about its focal point; @p rotation is in the camera's own space. */
void orbit(SoCamera& camera, const SbRotation& rotation);
/** The turn of a ball in the middle of the screen that takes one place to another. */
SbRotation ballRotation(const SbVec2f& from, const SbVec2f& to);
/** Moves the camera sideways, so that what is at the focal distance follows the hand. */
void pan(SoCamera& camera, const SbVec2f& from, const SbVec2f& to);
/** Goes nearer to the focal point, or away from it: the distance is multiplied by @p factor. */
void dolly(SoCamera& camera, float factor);

} // namespace CameraMotion
