#include <vexel/fields/SoField.h>

#include <algorithm>
#include <unordered_set>

#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/detail/FieldConversion.h>
#include <vexel/fields/detail/FieldLinks.h>
#include <vexel/sensors/SoDataSensor.h>

// How changes spread: to sensors, over connections, to the container.

void SoField::touch()
{
    SoNotList list;
    notify(list);
}

void SoField::valueChanged(SoTriggerType type)
{
    // Fetching the value over a connection is no change of its own: the source has notified already.
    if (hasFlag(Evaluating))
        return;
    setFlag(Default, false);
    setFlag(Stale, false);
    SoNotList list(type);
    notify(list);
}

void SoField::notify(SoNotList& list)
{
    if (!isNotifyEnabled() || hasFlag(Notifying))
        return;
    setFlag(Notifying, true);
    if (!list.field && !list.node)
        list.field = this;
    if (m_links) {
        for (SoDataSensor* sensor : std::vector<SoDataSensor*>(m_links->sensors))
            sensor->notify(list);
        for (SoField* follower : std::vector<SoField*>(m_links->followers))
            follower->sourceChanged(list.origin);
    }
    if (m_container)
        m_container->notify(list);
    setFlag(Notifying, false);
}

void SoField::tellSensors()
{
    if (!m_links || !isNotifyEnabled() || hasFlag(Notifying))
        return;
    SoNotList list;
    list.field = this;
    setFlag(Notifying, true);
    for (SoDataSensor* sensor : std::vector<SoDataSensor*>(m_links->sensors))
        sensor->notify(list);
    setFlag(Notifying, false);
}

void SoField::setDefault(bool on)
{
    if (on == isDefault())
        return;
    setFlag(Default, on);
    tellSensors();
}

SoFieldLinks& SoField::links()
{
    if (!m_links)
        m_links = std::make_unique<SoFieldLinks>();
    return *m_links;
}

namespace {

/**
 * Whether an engine gets its inputs, directly or through other engines, from one that @p container is. As a connection
 * holds its engine, such a ring would never go.
 */
bool needsValueOf(const SoEngine* engine, const SoFieldContainer* container)
{
    if (!container || !container->isOfType(SoEngine::getClassTypeId()))
        return false;
    const auto& outputs = static_cast<const SoEngine*>(container)->getOutputs();
    if (engine == container)
        return true;
    if (std::all_of(outputs.begin(), outputs.end(), [](auto* output) { return output->getConnections().empty(); }))
        return false;
    std::unordered_set<const SoEngine*> known{engine};
    std::vector<const SoEngine*> open{engine};
    while (!open.empty()) {
        const SoEngine* const next = open.back();
        open.pop_back();
        if (next == container)
            return true;
        for (const SoField* input : next->getFields()) {
            const SoEngineOutput* const output = input->getConnectedEngine();
            if (output && known.insert(output->getContainer()).second)
                open.push_back(output->getContainer());
        }
    }
    return false;
}

} // namespace

bool SoField::connectFrom(SoField* source)
{
    if (!source || source == this || !canConvertField(source->getTypeId(), getTypeId()))
        return false;
    release();
    links().sourceField = source;
    source->links().followers.push_back(this);
    connected();
    return true;
}

bool SoField::connectFrom(SoEngineOutput* source)
{
    if (!source || needsValueOf(source->getContainer(), m_container) ||
        !canConvertField(source->getConnectionType(), getTypeId()))
        return false;
    source->addConnection(this); // first, as the former source may be the last who holds this one's engine
    release();
    links().sourceOutput = source;
    connected();
    return true;
}

void SoField::connected()
{
    setFlag(Default, false);
    if (isConnectionEnabled())
        sourceChanged();
    else
        tellSensors();
}

void SoField::disconnect()
{
    if (!isConnected())
        return;
    release();
    tellSensors();
}

void SoField::release()
{
    if (!m_links)
        return;
    evaluate();
    cutConnection();
}

void SoField::cutFollowers()
{
    for (SoField* follower : std::vector<SoField*>(m_links->followers))
        follower->disconnect();
}

void SoField::cutConnection()
{
    setFlag(Stale, false);
    if (SoField* source = m_links->sourceField) {
        auto& followers = source->m_links->followers;
        followers.erase(std::find(followers.begin(), followers.end(), this));
        m_links->sourceField = nullptr;
    }
    if (SoEngineOutput* source = m_links->sourceOutput) {
        m_links->sourceOutput = nullptr;
        source->removeConnection(this);
    }
}

SoField* SoField::getConnectedField() const
{
    return m_links ? m_links->sourceField : nullptr;
}

SoEngineOutput* SoField::getConnectedEngine() const
{
    return m_links ? m_links->sourceOutput : nullptr;
}

std::vector<SoField*> SoField::getForwardConnections() const
{
    return m_links ? m_links->followers : std::vector<SoField*>();
}

void SoField::enableConnection(bool on)
{
    const bool before = isConnectionEnabled();
    setFlag(ConnectionEnabled, on);
    if (on && !before && isConnected())
        sourceChanged();
}

void SoField::sourceChanged(std::uint32_t origin)
{
    // A field whose own change comes back to it around a circle of connections keeps its value.
    if (!isConnectionEnabled() || hasFlag(Notifying))
        return;
    setFlag(Stale, true);
    SoNotList list;
    if (origin != 0)
        list.origin = origin;
    notify(list);
}

void SoField::evaluateConnection() const
{
    if (hasFlag(Evaluating))
        return;
    setFlag(Stale, false);
    setFlag(Evaluating, true);
    auto* self = const_cast<SoField*>(this);
    if (m_links->sourceField)
        convertField(*m_links->sourceField, *self);
    else if (m_links->sourceOutput)
        m_links->sourceOutput->giveValueTo(*self);
    setFlag(Evaluating, false);
}

void SoField::addAuditor(SoDataSensor* sensor)
{
    links().sensors.push_back(sensor);
}

void SoField::removeAuditor(SoDataSensor* sensor)
{
    auto& sensors = links().sensors;
    const auto found = std::find(sensors.begin(), sensors.end(), sensor);
    if (found != sensors.end())
        sensors.erase(found);
}
