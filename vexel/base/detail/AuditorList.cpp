#include <vexel/base/detail/AuditorList.h>

#include <algorithm>
#include <unordered_map>

namespace {
// From this many listeners on, their places are looked up in a hash.
constexpr std::size_t IndexedFrom = 32;
} // namespace

struct AuditorList::Large {
    std::vector<std::uintptr_t> keys;
    std::vector<std::uint32_t> counts;
    std::unordered_map<std::uintptr_t, std::uint32_t> places;
    std::uint32_t generation = 0;

    std::size_t find(std::uintptr_t key) const
    {
        if (places.empty())
            return static_cast<std::size_t>(std::find(keys.begin(), keys.end(), key) - keys.begin());
        const auto found = places.find(key);
        return found == places.end() ? keys.size() : found->second;
    }

    void add(std::uintptr_t key)
    {
        if (const std::size_t place = find(key); place < keys.size()) {
            ++counts[place];
            return;
        }
        ++generation;
        keys.push_back(key);
        counts.push_back(1);
        if (!places.empty()) {
            places.emplace(key, static_cast<std::uint32_t>(keys.size() - 1));
        } else if (keys.size() >= IndexedFrom) {
            for (std::size_t i = 0; i < keys.size(); ++i)
                places.emplace(keys[i], static_cast<std::uint32_t>(i));
        }
    }

    void remove(std::uintptr_t key)
    {
        const std::size_t place = find(key);
        if (place >= keys.size() || --counts[place] > 0)
            return;
        ++generation;
        if (!places.empty()) {
            places.erase(key);
            if (place + 1 < keys.size())
                places[keys.back()] = static_cast<std::uint32_t>(place);
        }
        keys[place] = keys.back();
        counts[place] = counts.back();
        keys.pop_back();
        counts.pop_back();
    }
};

AuditorList::~AuditorList()
{
    if (isLarge())
        delete large();
}

void AuditorList::add(void* auditor, SoAuditorType type)
{
    const std::uintptr_t key = keyOf(auditor, type);
    if (!m_data) {
        m_data = key;
        return;
    }
    if (!isLarge()) {
        auto* list = new Large;
        list->add(m_data);
        m_data = reinterpret_cast<std::uintptr_t>(list) | LargeTag;
    }
    large()->add(key);
}

void AuditorList::remove(void* auditor, SoAuditorType type)
{
    const std::uintptr_t key = keyOf(auditor, type);
    if (isLarge())
        large()->remove(key);
    else if (m_data == key)
        m_data = 0;
}

bool AuditorList::contains(void* auditor, SoAuditorType type) const
{
    const std::uintptr_t key = keyOf(auditor, type);
    return isLarge() ? large()->find(key) < large()->keys.size() : m_data == key;
}

std::size_t AuditorList::size() const
{
    return isLarge() ? large()->keys.size() : (m_data ? 1 : 0);
}

AuditorList::Entry AuditorList::at(std::size_t i) const
{
    const std::uintptr_t key = isLarge() ? large()->keys[i] : m_data;
    return {pointerOf(key), typeOf(key)};
}

std::uint32_t AuditorList::countAt(std::size_t i) const
{
    return isLarge() ? large()->counts[i] : 1;
}

std::vector<std::uintptr_t> AuditorList::keys() const
{
    return large()->keys;
}

std::uint32_t AuditorList::generationOfLarge() const
{
    return large()->generation;
}
