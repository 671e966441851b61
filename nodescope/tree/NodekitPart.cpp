#include "NodekitPart.h"

#include <vexel/base/SbString.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoNodekitCatalog.h>

NodekitPart::NodekitPart(SoBaseKit& kit, const SoNode& node)
    : m_kit(kit), m_name(kit.getPartString(&node).toLatin1().constData())
{
    if (isPart())
        m_number = kit.getNodekitCatalog().getPartNumber(m_name);
}

NodekitPart::Kind NodekitPart::kind() const
{
    if (!isPart())
        return NoPart;
    return m_name == "topSeparator" ? TopSeparator : OrdinaryPart;
}

SbName NodekitPart::parentName() const
{
    return m_number >= 0 ? m_kit.getNodekitCatalog().getParentName(m_number) : SbName();
}

bool NodekitPart::isPublic() const
{
    return m_number >= 0 && m_kit.getNodekitCatalog().isPublic(m_number);
}

bool NodekitPart::isNested() const
{
    return m_number >= 0 && m_kit.getNodekitCatalog().getParentPartNumber(m_number) != 0;
}
