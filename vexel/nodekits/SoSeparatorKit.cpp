#include <vexel/nodekits/SoSeparatorKit.h>

#include <vexel/nodekits/SoAppearanceKit.h>
#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoPickStyle.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTexture2Transform.h>
#include <vexel/nodes/SoTransform.h>
#include <vexel/nodes/SoUnits.h>

const SoNodekitCatalog& SoSeparatorKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder = CatalogBuilder(SoBaseKit::getClassNodekitCatalog(), getClassTypeId())
                                              .frame<SoSeparator>("topSeparator")
                                              .below("topSeparator")
                                              .part<SoPickStyle>("pickStyle")
                                              .part<SoAppearanceKit>("appearance")
                                              .part<SoUnits>("units")
                                              .part<SoTransform>("transform")
                                              .part<SoTexture2Transform>("texture2Transform")
                                              .list("childList", SoSeparator::getClassTypeId(),
                                                    {SoSeparatorKit::getClassTypeId(), SoShapeKit::getClassTypeId()});
    return builder.catalog();
}
