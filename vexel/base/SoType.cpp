#include <vexel/base/SoType.h>

#include <atomic>
#include <cassert>
#include <cstring>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>

namespace {

struct TypeRecord {
    SbName name;
    SoType parent;
    SoType::Factory factory = nullptr;
    // The ancestors from the family's root down to the type itself, so that a type of depth d is an ancestor exactly
    // when it stands at place d.
    std::vector<std::uint16_t> lineage;
};

// Records never move and are published by one atomic store, so that asking about a type needs no lock.
struct TypeTable {
    static constexpr std::size_t Capacity = 1u << 16;

    std::unique_ptr<std::atomic<const TypeRecord*>[]> records { new std::atomic<const TypeRecord*>[ Capacity ]() };
    std::atomic<std::uint32_t> count{1};
    std::unordered_map<SbName, std::uint16_t> byName;
    mutable std::shared_mutex mutex;

    TypeTable() { records[0] = new TypeRecord; }

    const TypeRecord& record(std::uint16_t key) const { return *records[key].load(std::memory_order_acquire); }
};

TypeTable& table()
{
    // Never destroyed: types are asked for until the last static object of a program is gone.
    static auto* instance = new TypeTable;
    return *instance;
}

const char* withoutPrefix(const char* name)
{
    return std::strncmp(name, "So", 2) == 0 && name[2] >= 'A' && name[2] <= 'Z' ? name + 2 : name;
}

} // namespace

SoType SoType::createType(SoType parent, const char* name, Factory factory)
{
    TypeTable& types = table();
    const SbName key(withoutPrefix(name));
    std::unique_lock lock(types.mutex);
    if (const auto found = types.byName.find(key); found != types.byName.end())
        return SoType(found->second);

    const std::uint32_t number = types.count;
    assert(number < TypeTable::Capacity && "SoType::createType: too many types");
    auto* record = new TypeRecord;
    record->name = key;
    record->parent = parent;
    record->factory = factory;
    if (!parent.isBad())
        record->lineage = types.record(parent.m_key).lineage;
    record->lineage.push_back(static_cast<std::uint16_t>(number));
    types.records[number].store(record, std::memory_order_release);
    types.byName.emplace(key, static_cast<std::uint16_t>(number));
    types.count = number + 1;
    return SoType(static_cast<std::uint16_t>(number));
}

SoType SoType::fromName(const SbName& name)
{
    const TypeTable& types = table();
    const SbName key(withoutPrefix(name.getString()));
    std::shared_lock lock(types.mutex);
    const auto found = types.byName.find(key);
    return found == types.byName.end() ? SoType() : SoType(found->second);
}

std::vector<SoType> SoType::getAllDerivedFrom(SoType base)
{
    std::vector<SoType> found;
    const std::uint32_t count = table().count;
    for (std::uint32_t key = 1; key < count; ++key) {
        const SoType type(static_cast<std::uint16_t>(key));
        if (type.isDerivedFrom(base))
            found.push_back(type);
    }
    return found;
}

SbName SoType::getName() const
{
    return table().record(m_key).name;
}

SoType SoType::getParent() const
{
    return table().record(m_key).parent;
}

bool SoType::isDerivedFrom(SoType ancestor) const
{
    if (m_key == ancestor.m_key)
        return !isBad();
    if (isBad() || ancestor.isBad())
        return false;
    const TypeTable& types = table();
    const std::size_t depth = types.record(ancestor.m_key).lineage.size();
    const auto& lineage = types.record(m_key).lineage;
    return lineage.size() >= depth && lineage[depth - 1] == ancestor.m_key;
}

bool SoType::canCreateInstance() const
{
    return table().record(m_key).factory != nullptr;
}

void* SoType::createInstance() const
{
    const Factory factory = table().record(m_key).factory;
    return factory ? factory() : nullptr;
}
