#include "EditorRegistry.h"

void EditorRegistry::add(SoType type, bool exact, NscExtension* extension)
{
    (exact ? m_exact : m_inheriting).emplace(type, extension);
}

void EditorRegistry::remove(const NscExtension* extension)
{
    for (Editors* editors : {&m_inheriting, &m_exact}) {
        for (auto entry = editors->begin(); entry != editors->end();)
            entry = entry->second == extension ? editors->erase(entry) : std::next(entry);
    }
}

std::vector<NscExtension*> EditorRegistry::find(SoType type) const
{
    std::vector<NscExtension*> found;
    for (const auto& [editedType, extension] : m_inheriting) {
        if (type.isDerivedFrom(editedType))
            found.push_back(extension);
    }
    const auto [first, last] = m_exact.equal_range(type);
    for (auto entry = first; entry != last; ++entry)
        found.push_back(entry->second);
    return found;
}
