#pragma once

#include <vexel/nodes/SoNode.h>

/** Keeps a node alive for the length of a block. A node that nobody holds at its end is deleted. */
class NodeKeeper {
public:
    explicit NodeKeeper(SoNode* node) : m_node(node)
    {
        if (m_node)
            m_node->ref();
    }
    ~NodeKeeper()
    {
        if (m_node)
            m_node->unref();
    }
    NodeKeeper(const NodeKeeper&) = delete;
    NodeKeeper& operator=(const NodeKeeper&) = delete;

private:
    SoNode* m_node;
};
