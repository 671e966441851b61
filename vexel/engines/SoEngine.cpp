#include <vexel/engines/SoEngine.h>

#include <algorithm>
#include <memory>

#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/detail/FieldConversion.h>

SoEngineOutput::SoEngineOutput(SoEngine* engine, const char* name, SoType type)
    : m_engine(engine), m_name(name), m_type(type)
{
    m_engine->m_outputs.push_back(this);
}

SoEngineOutput::~SoEngineOutput()
{
    for (SoField* field : std::vector<SoField*>(m_connections))
        field->disconnect();
}

void SoEngineOutput::addConnection(SoField* field)
{
    m_connections.push_back(field);
    m_engine->ref();
}

void SoEngineOutput::removeConnection(SoField* field)
{
    m_connections.erase(std::find(m_connections.begin(), m_connections.end(), field));
    m_engine->unref();
}

void SoEngineOutput::giveValueTo(SoField& field)
{
    if (!m_enabled)
        return;
    m_engine->m_toldOrigin = 0;
    if (field.getTypeId() == m_type) {
        m_engine->evaluate(*this, field);
        return;
    }
    std::unique_ptr<SoField> value(static_cast<SoField*>(m_type.createInstance()));
    m_engine->evaluate(*this, *value);
    convertField(*value, field);
}

void SoEngineOutput::notifyConnections(std::uint32_t origin)
{
    if (!m_enabled)
        return;
    for (SoField* field : std::vector<SoField*>(m_connections))
        field->sourceChanged(origin);
}

SoEngineOutput* SoEngine::getOutput(const SbName& name) const
{
    for (SoEngineOutput* output : m_outputs) {
        if (output->getName() == name)
            return output;
    }
    return nullptr;
}

bool SoEngine::inputChanged(const SoField*)
{
    return true;
}

void SoEngine::notify(SoNotList& list)
{
    const bool isOwn = list.field && list.field->getContainer() == this;
    const bool hasOtherValues = inputChanged(isOwn ? list.field : nullptr);
    if (!isNotifyEnabled() || isNotifiedOf(list))
        return;
    SoFieldContainer::notify(list);
    // One change may come in over many connections: whoever has not fetched a value yet knows of it already.
    if (!hasOtherValues || m_toldOrigin == list.origin)
        return;
    m_toldOrigin = list.origin;
    for (SoEngineOutput* output : m_outputs)
        output->notifyConnections(list.origin);
}
