#pragma once

#include <vexel/actions/SoAction.h>

class SoOutput;

/**
 * Writes a graph, or a path, as a scene. A path up to its first kit is written with what belongs to it: of each group
 * on the way the child that it leads to and the children in front that change the state for it, and everything below
 * its tail. The groups that choose a child by its place keep all their children. Where a node of the path is held in a
 * field, the path ends before it.
 */
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
