#pragma once

#include <vexel/nodes/SoSeparator.h>

#include <random>
#include <vector>

class SoBaseKit;

/** Changes a graph at random, as a host does; the same seed makes the same changes. */
class RandomGraph {
public:
    explicit RandomGraph(unsigned seed) : m_random(seed) {}

    /** A number from 0 to below @p count. */
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    /** A new scene of about @p nodes nodes, some of them shared. */
    SoSeparator* make(int nodes);
    /** One change somewhere below the root. */
    void change(SoSeparator& root);

private:
    SoNode* makeNode();
    SoNode* makeLeaf();
    std::vector<SoNode*> nodesBelow(SoNode& root) const;
    void changeChildren(SoGroup& group, const std::vector<SoNode*>& all);
    void changeKit(SoBaseKit& kit);

    std::mt19937 m_random;
};
