#pragma once

#include <vexel/actions/SoAction.h>

class SoOutput;

/** Writes a graph, or a path with the graph below its head, as a scene. */
class VEXEL_API SoWriteAction : public SoAction {
    SO_ACTION(SoWriteAction, SoAction)
public:
    /** @param out  where to; it outlives the action, and is neither opened nor closed by it */
    explicit SoWriteAction(SoOutput* out) : m_out(out) {}

    SoOutput* getOutput() const { return m_out; }
    bool needsState() const override { return false; }

protected:
    void visitNode(SoNode& node) override;

private:
    SoOutput* m_out;
};
