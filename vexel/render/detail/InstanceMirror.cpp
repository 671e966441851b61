#include <vexel/render/detail/InstanceMirror.h>

#include <epoxy/gl.h>

#include <vexel/render/detail/InstanceArena.h>

namespace vexel {

void InstanceMirror::update(const InstanceArena& arena)
{
    if (m_buffer && m_position == arena.journalEnd())
        return;
    const std::size_t count = arena.records().size();
    if (!m_buffer)
        glGenBuffers(1, &m_buffer);
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer);
    std::vector<InstanceArena::Range> changes;
    const bool few = arena.changesSince(m_position, changes);
    m_position = arena.journalEnd();
    if (!few || count > m_capacity) {
        // Vertex arrays stay valid: the buffer keeps its name.
        m_capacity = count + count / 4;
        glBufferData(GL_ARRAY_BUFFER, m_capacity * sizeof(InstanceRecord), nullptr, GL_DYNAMIC_DRAW);
        glBufferSubData(GL_ARRAY_BUFFER, 0, count * sizeof(InstanceRecord), arena.records().data());
        return;
    }
    for (const InstanceArena::Range& change : changes)
        glBufferSubData(GL_ARRAY_BUFFER, change.first * sizeof(InstanceRecord), change.count * sizeof(InstanceRecord),
                        &arena[change.first]);
}

void InstanceMirror::release()
{
    glDeleteBuffers(1, &m_buffer);
    *this = InstanceMirror();
}

} // namespace vexel
