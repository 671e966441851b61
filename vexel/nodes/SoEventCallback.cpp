#include <vexel/nodes/SoEventCallback.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/actions/SoEvent.h>
#include <vexel/actions/SoHandleEventAction.h>
#include <vexel/base/SoPath.h>

SoEventCallback::~SoEventCallback()
{
    setPath(nullptr);
}

void SoEventCallback::setPath(const SoPath* path)
{
    SoPath* kept = path ? path->copy() : nullptr;
    if (kept)
        kept->ref();
    if (m_path)
        m_path->unref();
    m_path = kept;
}

void SoEventCallback::addEventCallback(SoType eventType, Function* function, void* data)
{
    if (function)
        m_entries.push_back({eventType, function, data});
}

void SoEventCallback::removeEventCallback(SoType eventType, Function* function, void* data)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        return entry.type == eventType && entry.function == function && entry.data == data;
    });
    if (found != m_entries.end())
        m_entries.erase(found);
}

bool SoEventCallback::invoke(const SoEvent& event, SoAction* action)
{
    m_event = &event;
    m_action = action;
    m_handled = false;
    // Functions may add and remove entries.
    const std::vector<Entry> entries = m_entries;
    for (const Entry& entry : entries) {
        if (event.isOfType(entry.type))
            entry.function(entry.data, this);
    }
    m_event = nullptr;
    m_action = nullptr;
    return m_handled;
}

void SoEventCallback::handleEvent(SoHandleEventAction& action)
{
    if (invoke(*action.getEvent(), &action))
        action.setHandled();
}
