#pragma once

#include <vexel/base/SoType.h>

#include <map>
#include <vector>

class NscExtension;

/** Which extensions edit which field types. */
class EditorRegistry {
public:
    void add(SoType type, bool exact, NscExtension* extension);
    void remove(const NscExtension* extension);
    /** First those for the type and all derived from it, base types first, then those for exactly this type. */
    std::vector<NscExtension*> find(SoType type) const;

private:
    using Editors = std::multimap<SoType, NscExtension*>;

    Editors m_inheriting;
    Editors m_exact;
};
