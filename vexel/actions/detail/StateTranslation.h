#pragma once

#include <memory>

#include <vexel/render/RenderBackground.h>
#include <vexel/render/RenderMaterial.h>
#include <vexel/render/RenderState.h>
#include <vexel/render/RenderView.h>

class SbViewportRegion;
class SoGradientBackground;
class SoImageBackground;
class SoShape;
struct SoStateValues;

namespace vexel {

// What the values of the traversal state are in terms of drawing.

RenderViewport viewportOf(const SbViewportRegion& region);
RenderStyle styleOf(const SoStateValues& values, const SoShape& shape);
/** The first material; further ones are colours of vertices. */
RenderMaterial materialOf(const SoStateValues& values);
/** True when what is drawn follows from the camera beyond the usual projection. */
bool dependsOnView(const SoShape& shape, const SoStateValues& values);
RenderBackground backgroundOf(const SoGradientBackground& node);
RenderBackground backgroundOf(const SoImageBackground& node, std::shared_ptr<const RenderImage> image);

} // namespace vexel
