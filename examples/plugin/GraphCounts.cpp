#include "GraphCounts.h"

#include <vexel/actions/SoCallbackAction.h>
#include <vexel/actions/SoGetPrimitiveCountAction.h>
#include <vexel/nodes/SoNode.h>

namespace {

SoCallbackAction::Response countNode(void* count, SoCallbackAction*, const SoNode*)
{
    ++*static_cast<std::int64_t*>(count);
    return SoCallbackAction::CONTINUE;
}

} // namespace

GraphCounts GraphCounts::of(SoNode* root)
{
    GraphCounts counts;
    SoCallbackAction nodes;
    nodes.addPreCallback(SoNode::getClassTypeId(), countNode, &counts.nodes);
    nodes.apply(root);
    SoGetPrimitiveCountAction primitives;
    primitives.apply(root);
    counts.shapes = primitives.getShapeCount();
    counts.triangles = primitives.getTriangleCount();
    counts.lines = primitives.getLineCount();
    counts.points = primitives.getPointCount();
    return counts;
}
