#pragma once

#include <extension/NscCommand.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/sensors/SoWeakPtr.h>

/** Sets the override flag of a node, or takes it away. */
class SoNodeOverrideCommand : public NscCommand {
public:
    SoNodeOverrideCommand(SoNode* node, bool value) : m_node(node), m_value(value) {}

    bool execute() override;
    void undo() override;
    void redo() override { execute(); }

private:
    SoWeakPtr<SoNode> m_node;
    bool m_value;
};
