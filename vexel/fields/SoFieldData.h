#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <vexel/base/SbName.h>
#include <vexel/base/SoType.h>
#include <vexel/base/VexelApi.h>

class SoField;
class SoFieldContainer;

/**
 * The fields of a class of containers: their names, their order and where they stand in an instance.
 *
 * The table of a class fills itself while the first instance is constructed, inherited fields first.
 */
class VEXEL_API SoFieldData {
public:
    int getNumFields() const { return static_cast<int>(m_entries.size()); }
    const SbName& getFieldName(int index) const { return m_entries[static_cast<std::size_t>(index)].name; }
    SoField* getField(const SoFieldContainer* container, int index) const;
    /** Index of the field of that name, or -1. */
    int getIndex(const SbName& name) const;
    /** Index of a field of @p container, or -1 when it is none of this table. */
    int getIndex(const SoFieldContainer* container, const SoField* field) const;

    /**
     * Adds a field of @p container. A field that the table knows already, as for every instance but the first, costs
     * one comparison.
     */
    void addField(const SoFieldContainer* container, const char* name, const SoField* field)
    {
        const std::intptr_t offset = offsetOf(container, field);
        if (m_entries.empty() || offset > m_entries.back().offset)
            append(name, offset);
    }
    /** Takes over the fields of the base class, once, before the own ones. */
    void inherit(const SoFieldData& base);
    bool hasInherited() const { return m_hasInherited; }
    /** For tables that belong to one instance and hold fields outside it. */
    void appendUnordered(const SoFieldContainer* container, const SbName& name, const SoField* field);
    void clear() { m_entries.clear(); }

private:
    struct Entry {
        SbName name;
        std::intptr_t offset;
    };

    static std::intptr_t offsetOf(const SoFieldContainer* container, const SoField* field)
    {
        return reinterpret_cast<std::intptr_t>(field) - reinterpret_cast<std::intptr_t>(container);
    }
    void append(const char* name, std::intptr_t offset);

    std::vector<Entry> m_entries;
    bool m_hasInherited = false;
};

/** What the toolkit knows of a class of containers: one object per class, made by the class's declaration macro. */
struct VEXEL_API SoFieldClass {
    SoFieldClass(SoFieldClass* baseClass, const char* name, SoType::Factory factory, SoType root = SoType());

    SoFieldClass* base;
    SoType type;
    SoFieldData fields;
};
