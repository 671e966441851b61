#include <vexel/io/detail/SceneConnections.h>

#include <algorithm>

#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>

const char* SceneConnections::connect(SoField& field, SoFieldContainer& source, std::string_view name, bool isComplete)
{
    const SbName plainName(name);
    SoEngineOutput* output =
        source.isOfType(SoEngine::getClassTypeId()) ? static_cast<SoEngine&>(source).getOutput(plainName) : nullptr;
    SoField* master = output ? nullptr : source.getField(plainName);
    if (!output && !master)
        return "there is no output or field of that name";
    if (!countDepth(field.getContainer(), &source, isComplete))
        return "there are too many connections one behind the other";
    const bool isMade = output ? field.connectFrom(output) : field.connectFrom(master);
    return isMade ? nullptr : "its type does not fit, or the value would depend on itself";
}

bool SceneConnections::countDepth(const SoFieldContainer* target, const SoFieldContainer* source, bool isComplete)
{
    // What an incomplete source depends on is not known yet; a chain leads through few of them.
    constexpr int Reserve = MaxDepth / 10;
    const auto found = m_depths.find(source);
    const int depth = (found == m_depths.end() ? 0 : found->second) + (isComplete ? 1 : Reserve);
    if (depth > MaxDepth)
        return false;
    int& known = m_depths[target];
    known = std::max(known, depth);
    return true;
}
