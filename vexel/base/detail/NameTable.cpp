#include <vexel/base/detail/NameTable.h>

#include <cstdint>
#include <cstring>
#include <new>

namespace vexel::detail {

namespace {

constexpr std::size_t BlockSize = 16 * 1024;

/** FNV-1a, mixed once more at the end because the low bits choose the slot and the high bits the part. */
std::size_t hashOf(std::string_view text)
{
    std::uint64_t h = 14695981039346656037u;
    for (const char c : text)
        h = (h ^ static_cast<unsigned char>(c)) * 1099511628211u;
    return h ^ (h >> 32);
}

} // namespace

NameTable& NameTable::instance()
{
    // Never destroyed: objects with static storage may hold names until the very end of the process.
    static NameTable& table = *new NameTable;
    return table;
}

const char* NameTable::intern(std::string_view text)
{
    const std::size_t hash = hashOf(text);
    return m_parts[hash >> (8 * sizeof(hash) - PartBits)].intern(text, hash);
}

const char* NameTable::Part::intern(std::string_view text, std::size_t hash)
{
    const std::lock_guard lock(m_mutex);
    if (4 * (m_count + 1) > 3 * m_slots.size())
        grow();
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        const NameEntry*& slot = m_slots[i];
        if (!slot) {
            slot = create(text, hash);
            ++m_count;
        } else if (slot->hash != hash || std::string_view(slot->text(), slot->length) != text) {
            continue;
        }
        return slot->text();
    }
}

const NameEntry* NameTable::Part::create(std::string_view text, std::size_t hash)
{
    constexpr std::size_t Align = alignof(NameEntry);
    const std::size_t size = (sizeof(NameEntry) + text.size() + 1 + Align - 1) / Align * Align;
    std::byte* place;
    if (size > BlockSize / 4) {
        place = m_blocks.emplace_back(new std::byte[size]).get();
    } else {
        if (size > m_freeSize) {
            m_free = m_blocks.emplace_back(new std::byte[BlockSize]).get();
            m_freeSize = BlockSize;
        }
        place = m_free;
        m_free += size;
        m_freeSize -= size;
    }
    auto* entry = new (place) NameEntry{hash, text.size()};
    char* characters = reinterpret_cast<char*>(entry + 1);
    if (!text.empty())
        std::memcpy(characters, text.data(), text.size());
    characters[text.size()] = '\0';
    return entry;
}

void NameTable::Part::grow()
{
    std::vector<const NameEntry*> slots(m_slots.empty() ? 64 : 2 * m_slots.size());
    const std::size_t mask = slots.size() - 1;
    for (const NameEntry* entry : m_slots) {
        if (!entry)
            continue;
        std::size_t i = entry->hash & mask;
        while (slots[i])
            i = (i + 1) & mask;
        slots[i] = entry;
    }
    m_slots.swap(slots);
}

} // namespace vexel::detail
