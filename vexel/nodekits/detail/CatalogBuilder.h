#pragma once

#include <vexel/nodekits/SoNodekitCatalog.h>

/** Writes down the parts of a kit class, each in one line, in their order below a parent. */
class CatalogBuilder {
public:
    CatalogBuilder(const SoNodekitCatalog& base, SoType kitType) : m_catalog(base, kitType) {}

    /** Parts that follow stand below this one. */
    CatalogBuilder& below(const char* parent)
    {
        m_parent = SbName(parent);
        return *this;
    }
    /** A part that is made when it is asked for. */
    template <class Node, class Default = Node>
    CatalogBuilder& part(const char* name)
    {
        return add(name, Node::getClassTypeId(), Default::getClassTypeId(), true, true);
    }
    /** A part that every kit has from the first. */
    template <class Node, class Default = Node>
    CatalogBuilder& givenPart(const char* name)
    {
        return add(name, Node::getClassTypeId(), Default::getClassTypeId(), false, true);
    }
    /** A private group for other parts. */
    template <class Group>
    CatalogBuilder& frame(const char* name)
    {
        return add(name, Group::getClassTypeId(), Group::getClassTypeId(), false, false);
    }
    CatalogBuilder& list(const char* name, SoType container, std::vector<SoType> items);

    const SoNodekitCatalog& catalog() const { return m_catalog; }

private:
    CatalogBuilder& add(const char* name, SoType type, SoType defaultType, bool isNull, bool isPublic);

    SoNodekitCatalog m_catalog;
    SbName m_parent = "this";
};
