#include <vexel/state/SoState.h>

namespace {

// What holds where no property has said anything.
const SbColor DefaultAmbient(0.2f, 0.2f, 0.2f);
const SbColor DefaultDiffuse(0.8f, 0.8f, 0.8f);
const SbColor Black(0, 0, 0);
const float DefaultShininess = 0.2f;
const float Opaque = 0;

SoStateValues defaultValues()
{
    SoStateValues values;
    values.ambientColor = {&DefaultAmbient, 1, nullptr};
    values.diffuseColor = {&DefaultDiffuse, 1, nullptr};
    values.specularColor = {&Black, 1, nullptr};
    values.emissiveColor = {&Black, 1, nullptr};
    values.shininess = {&DefaultShininess, 1, nullptr};
    values.transparency = {&Opaque, 1, nullptr};
    return values;
}

} // namespace

SoState::SoState() : m_values(1, defaultValues()) {}

void SoState::push()
{
    m_values.push_back(SoStateValues(m_values.back()));
}

void SoState::pop()
{
    m_values.pop_back();
}

bool SoState::mayChange(SoOverrideBit kind, bool overrides)
{
    std::uint32_t& present = m_values.back().overrides;
    if ((present & kind) != 0)
        return false;
    if (overrides)
        present |= kind;
    return true;
}

void SoState::addLight(const SoLight* light)
{
    // Lights of separators that were left stand behind the present ones; they go now.
    SoStateValues& values = m_values.back();
    m_lights.erase(m_lights.begin() + values.numLights, m_lights.end());
    m_lights.push_back({light, values.model});
    ++values.numLights;
}

void SoState::addClipPlane(const SoNode* source, const SbPlane& worldPlane)
{
    SoStateValues& values = m_values.back();
    m_clipPlanes.erase(m_clipPlanes.begin() + values.numClipPlanes, m_clipPlanes.end());
    m_clipPlanes.push_back({source, worldPlane});
    ++values.numClipPlanes;
}
