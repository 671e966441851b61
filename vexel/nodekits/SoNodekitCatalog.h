#pragma once

#include <vector>

#include <vexel/base/SoType.h>

/**
 * What parts a class of kits has, and how they hang together. Part 0 is "this", the kit itself; a part comes after its
 * parent. Parts have numbers from 0 to getNumEntries() - 1, which all functions that take one expect.
 */
class VEXEL_API SoNodekitCatalog {
public:
    static constexpr int NotFound = -1;

    struct Entry {
        SbName name;
        /** What may be the part, and what is made when one is needed. */
        SoType type;
        SoType defaultType;
        /** Whether a new kit comes without the part. */
        bool isNullByDefault = true;
        SbName parentName = "this";
        /** The part that the part stands in front of, below the same parent; empty for the end. */
        SbName rightSiblingName = SbName();
        /** A list of nodes: a NodeKitListPart with this container and these types of items. */
        bool isList = false;
        SoType listContainerType = SoType();
        std::vector<SoType> listItemTypes = {};
        /** Private parts are the kit's own business. */
        bool isPublic = true;
    };

    /** A catalog with the kit itself only. */
    explicit SoNodekitCatalog(SoType kitType);
    /** All entries of a base class, for a class derived from it. */
    SoNodekitCatalog(const SoNodekitCatalog& base, SoType kitType);

    /** Adds a part; false, with nothing added, when the name is taken or parent or sibling are unknown. */
    bool addEntry(const Entry& entry);

    int getNumEntries() const { return static_cast<int>(m_entries.size()); }
    /** Number of the part of that name, or NotFound. */
    int getPartNumber(const SbName& name) const;
    const SbName& getName(int part) const { return at(part).name; }
    SoType getType(int part) const { return at(part).type; }
    SoType getDefaultType(int part) const { return at(part).defaultType; }
    bool isNullByDefault(int part) const { return at(part).isNullByDefault; }
    /** False for a part that has other parts below it. */
    bool isLeaf(int part) const;
    const SbName& getParentName(int part) const { return at(part).parentName; }
    /** NotFound for the kit itself. */
    int getParentPartNumber(int part) const { return getPartNumber(at(part).parentName); }
    const SbName& getRightSiblingName(int part) const { return at(part).rightSiblingName; }
    int getRightSiblingPartNumber(int part) const { return getPartNumber(at(part).rightSiblingName); }
    bool isList(int part) const { return at(part).isList; }
    SoType getListContainerType(int part) const { return at(part).listContainerType; }
    const std::vector<SoType>& getListItemTypes(int part) const { return at(part).listItemTypes; }
    bool isPublic(int part) const { return at(part).isPublic; }

    /** The parts below a parent, in their order from left to right. */
    std::vector<int> getPartsBelow(int parent) const;

private:
    const Entry& at(int part) const { return m_entries[static_cast<std::size_t>(part)]; }

    std::vector<Entry> m_entries;
};
