#include <vexel/render/RenderSurroundings.h>

#include <algorithm>

#include <vexel/render/detail/ResourceTrash.h>

namespace vexel {

RenderSurroundings::RenderSurroundings(Values values) : m_id(ResourceTrash::newId())
{
    set(std::move(values));
}

RenderSurroundings::~RenderSurroundings()
{
    ResourceTrash::discard(m_id);
}

void RenderSurroundings::set(Values values)
{
    m_values = std::move(values);
    if (m_values.lights.size() > MaxLights)
        m_values.lights.resize(MaxLights);
    if (m_values.clipPlanes.size() > MaxClipPlanes)
        m_values.clipPlanes.resize(MaxClipPlanes);
    // Programs are made for a number of lights of each kind, which therefore stand together.
    std::stable_sort(m_values.lights.begin(), m_values.lights.end(),
                     [](const RenderLight& a, const RenderLight& b) { return a.kind < b.kind; });
    ++m_version;
}

} // namespace vexel
