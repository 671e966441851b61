#pragma once

#include <cstddef>
#include <cstdint>

namespace vexel {

class InstanceArena;

/** Copy of a draw list's instance records on the graphics card. */
class InstanceMirror {
public:
    /** Copies what changed since the last call. */
    void update(const InstanceArena& arena);
    void release();

    unsigned buffer() const { return m_buffer; }

private:
    unsigned m_buffer = 0;
    std::size_t m_capacity = 0; // records
    std::uint64_t m_position = 0;
};

} // namespace vexel
