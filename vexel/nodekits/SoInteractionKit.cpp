#include <vexel/nodekits/SoInteractionKit.h>

#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoSeparator.h>

const SoNodekitCatalog& SoInteractionKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder = CatalogBuilder(SoBaseKit::getClassNodekitCatalog(), getClassTypeId())
                                              .frame<SoSeparator>("topSeparator")
                                              .below("topSeparator")
                                              .frame<SoSeparator>("geomSeparator");
    return builder.catalog();
}
