#include <vexel/nodes/SoCallback.h>

#include <vexel/actions/SoAction.h>

void SoCallback::doAction(SoAction& action)
{
    if (m_function)
        m_function(m_data, &action);
}

void SoCallback::copyContents(const SoNode& from, SoCopyMap& copies)
{
    SoNode::copyContents(from, copies);
    const auto& source = static_cast<const SoCallback&>(from);
    setCallback(source.m_function, source.m_data);
}
