#include "FieldCommands.h"

#include <vexel/engines/SoEngineOutput.h>

#include <utility>

namespace {

std::unique_ptr<SoMField> copyOfRange(const SoMField& list, int start, int num)
{
    std::unique_ptr<SoMField> copy(static_cast<SoMField*>(list.getTypeId().createInstance()));
    copy->replaceValues(0, 0, list, start, num);
    return copy;
}

void give(SoField& field, const SoField& value)
{
    field.copyFrom(value);
    field.setDefault(value.isDefault());
}

} // namespace

SetValueCommand::SetValueCommand(SoField& field, std::unique_ptr<SoField> value)
    : FieldCommand(field), m_before(copyOf(field)), m_after(std::move(value))
{
}

bool SetValueCommand::absorb(FieldCommand& next)
{
    auto* const later = dynamic_cast<SetValueCommand*>(&next);
    if (later)
        m_after = std::move(later->m_after);
    return later;
}

void SetValueCommand::apply(SoField& field)
{
    give(field, *m_after);
}

void SetValueCommand::revert(SoField& field)
{
    give(field, *m_before);
}

ReplaceValuesCommand::ReplaceValuesCommand(SoMField& list, int start, int num, std::unique_ptr<SoMField> values)
    : FieldCommand(list), m_start(start), m_wasDefault(list.isDefault()), m_before(copyOfRange(list, start, num)),
      m_after(std::move(values))
{
}

bool ReplaceValuesCommand::absorb(FieldCommand& next)
{
    auto* const later = dynamic_cast<ReplaceValuesCommand*>(&next);
    if (!later || later->m_start != m_start || later->m_before->getNum() != m_after->getNum())
        return false;
    m_after = std::move(later->m_after);
    return true;
}

void ReplaceValuesCommand::apply(SoField& field)
{
    static_cast<SoMField&>(field).replaceValues(m_start, m_before->getNum(), *m_after, 0, m_after->getNum());
}

void ReplaceValuesCommand::revert(SoField& field)
{
    static_cast<SoMField&>(field).replaceValues(m_start, m_after->getNum(), *m_before, 0, m_before->getNum());
    field.setDefault(m_wasDefault);
}

CutConnectionCommand::CutConnectionCommand(SoField& field)
    : FieldCommand(field), m_sourceField(field.getConnectedField())
{
    if (SoEngineOutput* const output = field.getConnectedEngine()) {
        m_sourceEngine.set(output->getContainer());
        m_output = output->getName();
    }
}

void CutConnectionCommand::revert(SoField& field)
{
    if (m_sourceField.get())
        field.connectFrom(m_sourceField.get());
    else if (m_sourceEngine.get())
        field.connectFrom(m_sourceEngine.get()->getOutput(m_output));
}
