#pragma once

#include <vexel/render/RenderGeometry.h>

namespace vexel {

/** A bumpy ball of about `triangles` triangles that fills most of a picture from -1 to 1. */
RenderGeometryArrays bumpyBall(int triangles);

/** A cube from -1 to 1 with flat sides. */
RenderGeometryArrays sharpCube();

} // namespace vexel
