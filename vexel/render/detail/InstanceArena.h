#pragma once

#include <cstddef>
#include <vector>

#include <vexel/render/detail/InstanceRecord.h>

namespace vexel {

/**
 * All instance records of a draw list in one array, so that one buffer on the graphics card mirrors it. Hands out
 * stretches whose sizes are powers of two, and keeps a journal of changed records from which each mirror catches up.
 */
class InstanceArena {
public:
    struct Range {
        std::uint32_t first;
        std::uint32_t count;
    };

    /** Index of the first record of a free stretch of `capacity` records, which must be a power of two. */
    std::uint32_t allocate(std::uint32_t capacity);
    void release(std::uint32_t first, std::uint32_t capacity);

    InstanceRecord& operator[](std::uint32_t index) { return m_records[index]; }
    const InstanceRecord& operator[](std::uint32_t index) const { return m_records[index]; }
    const std::vector<InstanceRecord>& records() const { return m_records; }

    /** Notes that records were written. */
    void touch(std::uint32_t first, std::uint32_t count = 1);

    /** Position behind the newest note. */
    std::uint64_t journalEnd() const { return m_dropped + m_journal.size(); }

    /** Appends the notes since `position` to `changes`; false when they are gone or so many that copying all is
     * cheaper. */
    bool changesSince(std::uint64_t position, std::vector<Range>& changes) const;

private:
    static constexpr std::size_t JournalLimit = 4096;

    std::vector<InstanceRecord> m_records;
    std::vector<std::vector<std::uint32_t>> m_free; // stretches by the logarithm of their size
    std::vector<Range> m_journal;
    std::uint64_t m_dropped = 0;
};

} // namespace vexel
