#include <vexel/render/detail/SortedCommands.h>

#include <algorithm>

#include <epoxy/gl.h>

namespace vexel {

void SortedCommands::update(const InstanceArena& arena, const std::vector<DrawCommand>& commands, const Camera& camera,
                            std::uint64_t layoutVersion)
{
    if (m_layoutVersion == layoutVersion && m_journalPosition == arena.journalEnd() && m_camera == camera &&
        m_inputSize == commands.size())
        return;
    m_layoutVersion = layoutVersion;
    m_journalPosition = arena.journalEnd();
    m_camera = camera;
    m_inputSize = commands.size();

    struct Item {
        float distance;
        std::uint32_t record;
        const PacketBatch* batch;
    };
    std::vector<Item> items;
    for (const DrawCommand& command : commands) {
        for (std::uint32_t record = command.first; record < command.first + command.count; ++record) {
            const Bounds& box = command.batch->boxes()[record - command.batch->firstRecord()];
            items.push_back({camera.distanceOf(box), record, command.batch});
        }
    }
    std::stable_sort(items.begin(), items.end(), [](const Item& a, const Item& b) { return a.distance > b.distance; });

    std::vector<InstanceRecord> records;
    records.reserve(items.size());
    m_commands.clear();
    for (const Item& item : items) {
        if (m_commands.empty() || m_commands.back().batch != item.batch)
            m_commands.push_back({item.batch, static_cast<std::uint32_t>(records.size()), 0});
        ++m_commands.back().count;
        records.push_back(arena[item.record]);
    }
    if (!m_buffer)
        glGenBuffers(1, &m_buffer);
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer);
    glBufferData(GL_ARRAY_BUFFER, records.size() * sizeof(InstanceRecord), records.data(), GL_STREAM_DRAW);
}

void SortedCommands::release()
{
    glDeleteBuffers(1, &m_buffer);
    m_buffer = 0;
}

} // namespace vexel
