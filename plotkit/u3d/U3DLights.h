#pragma once

#include <plotkit/u3d/U3DDocument.h>

class SoLight;
class SoState;

/** What a light of a graph does; loss over distance is that of the environment. */
U3DLight u3dLight(const SoLight& light, const SoState& state);
/** From the space in which a light of a document stands to that of the light. */
SbMatrix u3dLightPlace(const SoLight& light);
/** The light from everywhere. */
U3DLight u3dAmbientLight(const SoState& state);
