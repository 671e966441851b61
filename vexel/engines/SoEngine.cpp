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
    if (field.getTypeId() == m_type) {
        m_engine->evaluate(*this, field);
        return;
    }
    std::unique_ptr<SoField> value(static_cast<SoField*>(m_type.createInstance()));
    m_engine->evaluate(*this, *value);
    convertField(*value, field);
}

void SoEngineOutput::notifyConnections()
{
    if (!m_enabled)
        return;
    for (SoField* field : std::vector<SoField*>(m_connections))
        field->sourceChanged();
}

SoEngineOutput* SoEngine::getOutput(const SbName& name) const
{
    for (SoEngineOutput* output : m_outputs) {
        if (output->getName() == name)
            return output;
    }
    return nullptr;
}

void SoEngine::notify(SoNotList& list)
{
    if (!isNotifyEnabled() || isNotifiedOf(list))
        return;
    SoFieldContainer::notify(list);
    for (SoEngineOutput* output : m_outputs)
        output->notifyConnections();
}
