#include <vexel/nodekits/SoNodekitCatalog.h>

#include <algorithm>

SoNodekitCatalog::SoNodekitCatalog(SoType kitType)
{
    Entry self{"this", kitType, kitType, false, SbName()};
    m_entries.push_back(std::move(self));
}

SoNodekitCatalog::SoNodekitCatalog(const SoNodekitCatalog& base, SoType kitType) : m_entries(base.m_entries)
{
    m_entries.front().type = m_entries.front().defaultType = kitType;
}

bool SoNodekitCatalog::addEntry(const Entry& entry)
{
    const bool isKnownSibling = entry.rightSiblingName.isEmpty() || getPartNumber(entry.rightSiblingName) != NotFound;
    if (entry.name.isEmpty() || getPartNumber(entry.name) != NotFound || getPartNumber(entry.parentName) == NotFound ||
        !isKnownSibling)
        return false;
    m_entries.push_back(entry);
    return true;
}

int SoNodekitCatalog::getPartNumber(const SbName& name) const
{
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) { return entry.name == name; });
    return found == m_entries.end() || name.isEmpty() ? NotFound : static_cast<int>(found - m_entries.begin());
}

bool SoNodekitCatalog::isLeaf(int part) const
{
    const SbName& name = getName(part);
    return std::none_of(m_entries.begin(), m_entries.end(),
                        [&](const Entry& entry) { return entry.parentName == name; });
}

std::vector<int> SoNodekitCatalog::getPartsBelow(int parent) const
{
    std::vector<int> parts;
    for (int part = 1; part < getNumEntries(); ++part) {
        if (getParentPartNumber(part) != parent)
            continue;
        const auto place = std::find(parts.begin(), parts.end(), getRightSiblingPartNumber(part));
        parts.insert(place, part);
    }
    return parts;
}
