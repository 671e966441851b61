#include <vexel/nodekits/SoCameraKit.h>

#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoPerspectiveCamera.h>
#include <vexel/nodes/SoTransform.h>
#include <vexel/nodes/SoTransformSeparator.h>

const SoNodekitCatalog& SoCameraKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder = CatalogBuilder(SoBaseKit::getClassNodekitCatalog(), getClassTypeId())
                                              .frame<SoTransformSeparator>("transformGroup")
                                              .below("transformGroup")
                                              .part<SoTransform>("transform")
                                              .givenPart<SoCamera, SoPerspectiveCamera>("camera");
    return builder.catalog();
}
