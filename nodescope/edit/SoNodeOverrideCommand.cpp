#include "SoNodeOverrideCommand.h"

bool SoNodeOverrideCommand::execute()
{
    if (m_node.get())
        m_node.get()->setOverride(m_value);
    return m_node.get() != nullptr;
}

void SoNodeOverrideCommand::undo()
{
    if (m_node.get())
        m_node.get()->setOverride(!m_value);
}
