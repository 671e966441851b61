#include "HighlightChoice.h"

#include <vexel/actions/SoBoxHighlightRenderAction.h>
#include <vexel/actions/SoHaloHighlightRenderAction.h>
#include <vexel/actions/SoLineHighlightRenderAction.h>
#include <vexel/base/SoPreferences.h>

namespace {

const bool Is_extended_display =
    SoPreferences::getBool("VXRU_LAUNCH_NODESCOPE", false) || SoPreferences::getBool("ART_LAUNCH_NODESCOPE", false);

} // namespace

SoHighlightRenderAction* HighlightChoice::makeAction(const SbViewportRegion& region)
{
    if (Is_extended_display)
        return nullptr;
    const SbString mode = SoPreferences::getString("NODESCOPE_HIGHLIGHTING_MODE", "LINE");
    if (mode == "HALO") {
        auto* halo = new SoHaloHighlightRenderAction(region);
        halo->setHaloAlwaysVisible(true);
        return halo;
    }
    if (mode == "BOX")
        return new SoBoxHighlightRenderAction(region);
    return new SoLineHighlightRenderAction(region);
}
