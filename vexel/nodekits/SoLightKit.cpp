#include <vexel/nodekits/SoLightKit.h>

#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoDirectionalLight.h>
#include <vexel/nodes/SoLight.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTransform.h>
#include <vexel/nodes/SoTransformSeparator.h>

const SoNodekitCatalog& SoLightKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder = CatalogBuilder(SoBaseKit::getClassNodekitCatalog(), getClassTypeId())
                                              .frame<SoTransformSeparator>("transformGroup")
                                              .below("transformGroup")
                                              .part<SoTransform>("transform")
                                              .givenPart<SoLight, SoDirectionalLight>("light")
                                              .frame<SoSeparator>("iconSeparator")
                                              .below("iconSeparator")
                                              .part<SoNode, SoCube>("icon");
    return builder.catalog();
}
