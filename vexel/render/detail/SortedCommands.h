#pragma once

#include <vector>

#include <vexel/render/detail/DrawPlan.h>

namespace vexel {

class InstanceArena;

/** Transparent packets from back to front, with their records copied in that order, so that runs of equal packets are
    still drawn together. Kept while camera, packets and colours stay. */
class SortedCommands {
public:
    void update(const InstanceArena& arena, const std::vector<DrawCommand>& commands, const Camera& camera,
                std::uint64_t layoutVersion);

    const std::vector<DrawCommand>& commands() const { return m_commands; }
    unsigned buffer() const { return m_buffer; }
    void release();

private:
    unsigned m_buffer = 0;
    std::vector<DrawCommand> m_commands;
    Camera m_camera{RenderView()};
    std::uint64_t m_layoutVersion = 0;
    std::uint64_t m_journalPosition = 0;
    std::size_t m_inputSize = 0;
};

} // namespace vexel
