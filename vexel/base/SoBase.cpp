#include <vexel/base/SoBase.h>

#include <algorithm>
#include <mutex>
#include <unordered_map>

#include <vexel/base/SoPath.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/sensors/SoDataSensor.h>

namespace {

// The objects of each name with the order in which they got it.
struct NameTable {
    std::unordered_map<SbName, std::unordered_map<SoBase*, std::uint64_t>> byName;
    std::unordered_map<const SoBase*, SbName> netNames;
    std::uint64_t counter = 0;
    std::mutex mutex;
};

NameTable& names()
{
    static auto* instance = new NameTable;
    return *instance;
}

std::atomic<std::int64_t> s_living{0};
std::atomic<std::uint32_t> s_stamp{0};

void notifyOther(void* auditor, SoAuditorType type, SoNotList& list)
{
    if (type == SoAuditorType::Path)
        static_cast<SoPath*>(auditor)->notify(list);
    else if (type == SoAuditorType::Sensor)
        static_cast<SoDataSensor*>(auditor)->notify(list);
    else
        static_cast<SoField*>(auditor)->notify(list);
}

} // namespace

std::uint32_t SoNotList::nextStamp()
{
    const std::uint32_t stamp = s_stamp.fetch_add(1, std::memory_order_relaxed) + 1;
    return stamp ? stamp : s_stamp.fetch_add(1, std::memory_order_relaxed) + 1;
}

SoBase::SoBase()
{
    s_living.fetch_add(1, std::memory_order_relaxed);
}

SoBase::~SoBase()
{
    m_auditors.forEach([](void* auditor, SoAuditorType type) {
        if (type == SoAuditorType::Sensor)
            static_cast<SoDataSensor*>(auditor)->sourceDestroyed();
    });
    if (!m_name.isEmpty())
        setName(SbName());
    if (m_hasNetName)
        setNetName(SbName());
    s_living.fetch_sub(1, std::memory_order_relaxed);
}

SoType SoBase::getClassTypeId()
{
    static const SoType type = SoType::createType(SoType(), "SoBase");
    return type;
}

void SoBase::unref() const
{
    if (m_references.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

void SoBase::setName(const SbName& name)
{
    if (name == m_name)
        return;
    NameTable& table = names();
    std::lock_guard lock(table.mutex);
    if (!m_name.isEmpty()) {
        const auto found = table.byName.find(m_name);
        found->second.erase(this);
        if (found->second.empty())
            table.byName.erase(found);
    }
    m_name = name;
    if (!m_name.isEmpty())
        table.byName[m_name][this] = ++table.counter;
}

SbName SoBase::getNetName() const
{
    NameTable& table = names();
    std::lock_guard lock(table.mutex);
    const auto found = table.netNames.find(this);
    return found == table.netNames.end() ? SbName() : found->second;
}

void SoBase::setNetName(const SbName& name)
{
    NameTable& table = names();
    std::lock_guard lock(table.mutex);
    if (name.isEmpty())
        table.netNames.erase(this);
    else
        table.netNames[this] = name;
    m_hasNetName = !name.isEmpty();
}

SoBase* SoBase::getNamedBase(const SbName& name, SoType type)
{
    const std::vector<SoBase*> found = getNamedBases(name, type);
    return found.empty() ? nullptr : found.back();
}

std::vector<SoBase*> SoBase::getNamedBases(const SbName& name, SoType type)
{
    NameTable& table = names();
    std::lock_guard lock(table.mutex);
    const auto named = table.byName.find(name);
    if (named == table.byName.end())
        return {};
    std::vector<std::pair<std::uint64_t, SoBase*>> ordered;
    for (const auto& [base, order] : named->second) {
        if (base->isOfType(type))
            ordered.emplace_back(order, base);
    }
    std::sort(ordered.begin(), ordered.end());
    std::vector<SoBase*> found;
    found.reserve(ordered.size());
    for (const auto& [order, base] : ordered)
        found.push_back(base);
    return found;
}

void SoBase::touch()
{
    SoNotList list;
    notify(list);
}

void SoBase::notify(SoNotList& list)
{
    if (isNotifiedOf(list))
        return;
    notifyAuditors(list);
}

void SoBase::notifyAuditors(SoNotList& list)
{
    m_stamp = list.stamp;
    const SoNotRec record{this, list.last};
    list.last = &record;
    m_auditors.forEach([&list](void* auditor, SoAuditorType type) {
        // Most are containers, and a branch is cheaper than a jump table.
        if (type == SoAuditorType::Container || type == SoAuditorType::Engine)
            static_cast<SoFieldContainer*>(auditor)->notify(list);
        else
            notifyOther(auditor, type, list);
    });
    list.last = record.previous;
}

std::int64_t SoBase::getNumLiving()
{
    return s_living.load(std::memory_order_relaxed);
}
