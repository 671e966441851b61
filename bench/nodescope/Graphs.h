#pragma once

#include <vexel/base/SbName.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSeparator.h>

#include <string>
#include <vector>

enum GraphShape { Eight_each, Flat };
enum class GraphNames { None, OneEach };

/** A referenced separator with that many nodes in all: cubes below it, or below groups of eight. */
inline SoSeparator* makeGraph(int numNodes, GraphShape shape, GraphNames names = GraphNames::None)
{
    auto* root = new SoSeparator;
    root->ref();
    root->enableNotify(false);
    std::vector<SoGroup*> groups{root};
    std::size_t parent = 0;
    for (int made = 1; made < numNodes; ++made) {
        while (shape == Eight_each && groups[parent]->getNumChildren() == 8)
            ++parent;
        const bool isGroup = shape == Eight_each && groups.size() * 8 < std::size_t(numNodes);
        SoNode* node = isGroup ? static_cast<SoNode*>(new SoGroup) : new SoCube;
        if (names == GraphNames::OneEach)
            node->setName(SbName("Node_" + std::to_string(made)));
        groups[parent]->addChild(node);
        if (isGroup)
            groups.push_back(static_cast<SoGroup*>(node));
    }
    root->enableNotify(true);
    return root;
}
