#include "SetTimeCommand.h"

// [command]
SetTimeCommand::SetTimeCommand(SoSFTime& field, SbTime time)
    : m_field(&field), m_before(field.getValue()), m_wasDefault(field.isDefault()), m_after(time)
{
}

bool SetTimeCommand::execute()
{
    if (!m_field.get())
        return false;
    m_field.get()->setValue(m_after);
    return true;
}

void SetTimeCommand::undo()
{
    if (!m_field.get())
        return;
    m_field.get()->setValue(m_before);
    m_field.get()->setDefault(m_wasDefault);
}

void SetTimeCommand::redo()
{
    execute();
}
// [end]
