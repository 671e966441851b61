#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <vector>

namespace vexel::detail {

/** What stands in memory directly before the characters of an interned text. */
struct NameEntry {
    std::size_t hash;
    std::size_t length;

    const char* text() const noexcept { return reinterpret_cast<const char*>(this + 1); }
    static const NameEntry& of(const char* text) noexcept { return reinterpret_cast<const NameEntry*>(text)[-1]; }
};

/** The texts of all names; split into parts with a lock each, so that threads seldom wait for each other. */
class NameTable {
public:
    static NameTable& instance();

    /** The kept copy of `text`, the same pointer for the same text. */
    const char* intern(std::string_view text);

private:
    /** Open-addressed hash table of entries, which live in blocks that are never freed while names are in use. */
    class Part {
    public:
        const char* intern(std::string_view text, std::size_t hash);

    private:
        const NameEntry* create(std::string_view text, std::size_t hash);
        void grow();

        std::mutex m_mutex;
        std::vector<const NameEntry*> m_slots;
        std::size_t m_count = 0;
        std::vector<std::unique_ptr<std::byte[]>> m_blocks;
        std::byte* m_free = nullptr;
        std::size_t m_freeSize = 0;
    };

    static constexpr unsigned PartBits = 4;
    std::array<Part, 1u << PartBits> m_parts;
};

} // namespace vexel::detail
