#pragma once

#include <string_view>
#include <unordered_map>

class SoField;
class SoFieldContainer;

/** Makes the connections of a scene that is read. */
class SceneConnections {
public:
    /**
     * Connects @p field to an output or a field of @p source.
     * @param isComplete  whether the source has been read to its end
     * @return why not; null for a connection that was made
     */
    const char* connect(SoField& field, SoFieldContainer& source, std::string_view name, bool isComplete);

    /**
     * A change walks along all connections that stand one behind the other, and so does the question for a value:
     * longer chains are more than the stack can bear.
     */
    static constexpr int MaxDepth = 1000;

private:
    bool countDepth(const SoFieldContainer* target, const SoFieldContainer* source, bool isComplete);

    std::unordered_map<const SoFieldContainer*, int> m_depths;
};
