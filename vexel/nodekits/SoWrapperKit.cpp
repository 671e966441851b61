#include <vexel/nodekits/SoWrapperKit.h>

#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTransform.h>

const SoNodekitCatalog& SoWrapperKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder = CatalogBuilder(SoSeparatorKit::getClassNodekitCatalog(), getClassTypeId())
                                              .below("topSeparator")
                                              .frame<SoSeparator>("contentsSeparator")
                                              .below("contentsSeparator")
                                              .part<SoTransform>("localTransform")
                                              .part<SoSeparator>("contents");
    return builder.catalog();
}
