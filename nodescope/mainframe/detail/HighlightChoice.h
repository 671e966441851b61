#pragma once

class SbViewportRegion;
class SoHighlightRenderAction;

/** How the selected node is marked in the 3D view. */
namespace HighlightChoice {

/** The action that the preference NODESCOPE_HIGHLIGHTING_MODE asks for: "HALO", "BOX", else lines. The caller owns it.
 * Null in the extended display, which marks nothing. */
SoHighlightRenderAction* makeAction(const SbViewportRegion& region);

} // namespace HighlightChoice
