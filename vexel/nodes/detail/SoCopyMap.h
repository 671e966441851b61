#pragma once

#include <unordered_map>
#include <utility>
#include <vector>

#include <vexel/base/VexelApi.h>

class SoBase;
class SoField;
class SoNode;

/** The copies made so far while a graph is copied. */
class VEXEL_API SoCopyMap {
public:
    /** The copy of @p node, made now when it is first asked for; null for null. */
    SoNode* copyOf(const SoNode* node);
    /** The copy of an object, or the object itself when it was not copied. */
    SoBase* find(SoBase* object) const;
    /** Makes the connections of the originals between the copies. */
    void copyConnections() const;

private:
    std::unordered_map<const SoBase*, SoBase*> m_copies;
    std::vector<std::pair<const SoNode*, SoNode*>> m_order;
};
