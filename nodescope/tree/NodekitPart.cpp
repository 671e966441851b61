#include "NodekitPart.h"

#include <vexel/base/SbString.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoNodekitCatalog.h>

NodekitPart::NodekitPart(SoBaseKit* describingKit, SoNode* node) : kit(describingKit)
{
    partName = SbName(kit->getPartString(node).toLatin1().constData());
    isPart = !partName.isEmpty();
    if (!isPart)
        return;
    kind = partName == "topSeparator" ? TopSeparator : OrdinaryPart;
    partNumber = kit->getNodekitCatalog().getPartNumber(partName);
}

SbName NodekitPart::parentName() const
{
    return isPart ? kit->getNodekitCatalog().getParentName(partNumber) : SbName();
}

bool NodekitPart::isPublic() const
{
    return isPart && kit->getNodekitCatalog().isPublic(partNumber);
}

bool NodekitPart::isNested(SoBaseKit* kit, SoNode* node)
{
    const SbName name(kit->getPartString(node).toLatin1().constData());
    if (name.isEmpty())
        return false;
    const SoNodekitCatalog& catalog = kit->getNodekitCatalog();
    return catalog.getParentPartNumber(catalog.getPartNumber(name)) != 0;
}
