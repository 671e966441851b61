#include <vexel/nodekits/SoSceneKit.h>

#include <vexel/nodekits/SoCameraKit.h>
#include <vexel/nodekits/SoLightKit.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/SoSeparatorKit.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSwitch.h>

const SoNodekitCatalog& SoSceneKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder =
        CatalogBuilder(SoBaseKit::getClassNodekitCatalog(), getClassTypeId())
            .frame<SoSeparator>("topSeparator")
            .below("topSeparator")
            .list("cameraList", SoSwitch::getClassTypeId(), {SoCameraKit::getClassTypeId()})
            .list("lightList", SoGroup::getClassTypeId(), {SoLightKit::getClassTypeId()})
            .list("childList", SoGroup::getClassTypeId(),
                  {SoShapeKit::getClassTypeId(), SoSeparatorKit::getClassTypeId(), SoBaseKit::getClassTypeId()});
    return builder.catalog();
}

int SoSceneKit::getCameraNumber() const
{
    const auto* list = static_cast<SoNodeKitListPart*>(cameraList.getValue());
    const SoNode* container = list ? list->containerNode.getValue() : nullptr;
    return container && container->isOfType(SoSwitch::getClassTypeId())
               ? static_cast<const SoSwitch*>(container)->whichChild.getValue()
               : -1;
}

void SoSceneKit::setCameraNumber(int number)
{
    auto* list = static_cast<SoNodeKitListPart*>(getPart("cameraList", true));
    list->containerSet(SbString("whichChild ") + SbString(number));
}

void SoSceneKit::setCameraNumber(const SoCameraKit* camera)
{
    const auto* list = static_cast<SoNodeKitListPart*>(cameraList.getValue());
    const int number = list ? list->findChild(camera) : -1;
    if (number >= 0)
        setCameraNumber(number);
}
