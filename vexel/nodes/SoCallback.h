#pragma once

#include <vexel/nodes/SoNode.h>

/** Calls a function of the program whenever an action comes to it. */
class VEXEL_API SoCallback : public SoNode {
    SO_NODE(SoCallback, SoNode)
public:
    using Function = void(void* data, SoAction* action);

    /** A null function calls nothing. */
    void setCallback(Function* function, void* data = nullptr)
    {
        m_function = function;
        m_data = data;
    }

    void doAction(SoAction& action) override;
    void copyContents(const SoNode& from, SoCopyMap& copies) override;

private:
    Function* m_function = nullptr;
    void* m_data = nullptr;
};
