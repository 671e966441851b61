#include <vexel/nodekits/detail/CatalogBuilder.h>

#include <vexel/nodekits/SoNodeKitListPart.h>

CatalogBuilder& CatalogBuilder::add(const char* name, SoType type, SoType defaultType, bool isNull, bool isPublic)
{
    SoNodekitCatalog::Entry entry{SbName(name), type, defaultType, isNull, m_parent};
    entry.isPublic = isPublic;
    m_catalog.addEntry(entry);
    return *this;
}

CatalogBuilder& CatalogBuilder::list(const char* name, SoType container, std::vector<SoType> items)
{
    const SoType type = SoNodeKitListPart::getClassTypeId();
    SoNodekitCatalog::Entry entry{SbName(name), type, type, true, m_parent};
    entry.isList = true;
    entry.listContainerType = container;
    entry.listItemTypes = std::move(items);
    m_catalog.addEntry(entry);
    return *this;
}
