#include <vexel/nodekits/SoAppearanceKit.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoCameraKit.h>
#include <vexel/nodekits/SoInteractionKit.h>
#include <vexel/nodekits/SoLightKit.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoSceneKit.h>
#include <vexel/nodekits/SoSeparatorKit.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodekits/SoWrapperKit.h>
#include <vexel/nodekits/detail/KitTypes.h>

namespace {

template <class... Kits>
void registerAll()
{
    (Kits::getClassTypeId(), ...);
}

} // namespace

void registerKitTypes()
{
    registerAll<SoNodeKitListPart, SoBaseKit, SoAppearanceKit, SoSeparatorKit, SoShapeKit, SoWrapperKit, SoCameraKit,
                SoLightKit, SoSceneKit, SoInteractionKit>();
}
