#include <vexel/nodekits/SoAppearanceKit.h>

#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoComplexity.h>
#include <vexel/nodes/SoDrawStyle.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoFont.h>
#include <vexel/nodes/SoLightModel.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoTexture2.h>

const SoNodekitCatalog& SoAppearanceKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder = CatalogBuilder(SoBaseKit::getClassNodekitCatalog(), getClassTypeId())
                                              .part<SoLightModel>("lightModel")
                                              .part<SoEnvironment>("environment")
                                              .part<SoDrawStyle>("drawStyle")
                                              .part<SoMaterial>("material")
                                              .part<SoComplexity>("complexity")
                                              .part<SoTexture2>("texture2")
                                              .part<SoFont>("font");
    return builder.catalog();
}
