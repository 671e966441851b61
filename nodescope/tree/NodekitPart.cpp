#include "NodekitPart.h"

#include <vexel/base/SbString.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoNodekitCatalog.h>

NodekitPart::NodekitPart(SoBaseKit& kit, const SoNode& node)
    : m_kit(kit), m_node(node), m_name(kit.getPartString(&node).toLatin1().constData())
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

int NodekitPart::innerPlaces() const
{
    if (!isPart())
        return 0;
    const AuditorList& auditors = m_node.getAuditors();
    int places = 0;
    for (std::size_t i = 0; i < auditors.size(); ++i) {
        const auto [auditor, type] = auditors.at(i);
        if (type != SoAuditorType::Container)
            continue;
        const auto* above = static_cast<const SoNode*>(static_cast<const SoFieldContainer*>(auditor));
        if (above == &m_kit || !m_kit.getPartString(above).isEmpty())
            places += int(auditors.countAt(i));
    }
    return places;
}
