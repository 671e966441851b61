#include <vexel/draggers/SoClipPlaneManip.h>
#include <vexel/draggers/SoDirectionalLightManip.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/draggers/SoPointLightManip.h>
#include <vexel/draggers/SoSpotLightManip.h>
#include <vexel/draggers/SoTransformManip.h>
#include <vexel/draggers/detail/ManipTypes.h>

namespace {

template <class... Nodes>
void registerAll()
{
    (Nodes::getClassTypeId(), ...);
}

} // namespace

void registerManipTypes()
{
    registerAll<SoDragger, SoTransformManip, SoDirectionalLightManip, SoPointLightManip, SoSpotLightManip,
                SoClipPlaneManip>();
}
