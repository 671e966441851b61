#include <vexel/fields/SoFieldData.h>

#include <mutex>

#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>

namespace {
std::mutex s_appendMutex;
}

SoField* SoFieldData::getField(const SoFieldContainer* container, int index) const
{
    const std::intptr_t offset = m_entries[static_cast<std::size_t>(index)].offset;
    return reinterpret_cast<SoField*>(reinterpret_cast<std::intptr_t>(container) + offset);
}

int SoFieldData::getIndex(const SbName& name) const
{
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].name == name)
            return static_cast<int>(i);
    }
    return -1;
}

int SoFieldData::getIndex(const SoFieldContainer* container, const SoField* field) const
{
    const std::intptr_t offset = offsetOf(container, field);
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].offset == offset)
            return static_cast<int>(i);
    }
    return -1;
}

void SoFieldData::inherit(const SoFieldData& base)
{
    std::lock_guard lock(s_appendMutex);
    if (m_hasInherited)
        return;
    m_entries = base.m_entries;
    m_hasInherited = true;
}

void SoFieldData::append(const char* name, std::intptr_t offset)
{
    std::lock_guard lock(s_appendMutex);
    if (m_entries.empty() || offset > m_entries.back().offset)
        m_entries.push_back({SbName(name), offset});
}

void SoFieldData::appendUnordered(const SoFieldContainer* container, const SbName& name, const SoField* field)
{
    m_entries.push_back({name, offsetOf(container, field)});
}

SoFieldClass::SoFieldClass(SoFieldClass* baseClass, const char* name, SoType::Factory factory, SoType root)
    : base(baseClass), type(SoType::createType(baseClass ? baseClass->type : root, name, factory))
{
}
