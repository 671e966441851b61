#include <vexel/draggers/SoDragger.h>

#include <vexel/nodekits/SoNodekitCatalog.h>

const SoNodekitCatalog& SoDragger::getClassNodekitCatalog()
{
    static const SoNodekitCatalog catalog(SoInteractionKit::getClassNodekitCatalog(), getClassTypeId());
    return catalog;
}
