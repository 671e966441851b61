#pragma once

#include <algorithm>
#include <utility>
#include <vector>

/** Functions of the program with their data; each may take itself or others out while it is called. */
template <class... Arguments>
class CallbackList {
public:
    using Function = void(void* data, Arguments...);

    void add(Function* function, void* data) { m_entries.emplace_back(function, data); }
    void remove(Function* function, void* data)
    {
        const auto found = std::find(m_entries.begin(), m_entries.end(), std::pair(function, data));
        if (found != m_entries.end())
            m_entries.erase(found);
    }
    void call(Arguments... arguments) const
    {
        const auto entries = m_entries;
        for (const auto& [function, data] : entries) {
            if (std::find(m_entries.begin(), m_entries.end(), std::pair(function, data)) != m_entries.end())
                function(data, arguments...);
        }
    }

private:
    std::vector<std::pair<Function*, void*>> m_entries;
};
