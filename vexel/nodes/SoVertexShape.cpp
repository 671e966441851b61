#include <vexel/nodes/SoVertexShape.h>

#include <vexel/actions/SoAction.h>

void SoVertexShape::doAction(SoAction& action)
{
    SoNode* property = vertexProperty.isIgnored() ? nullptr : vertexProperty.getValue();
    if (!property) {
        SoShape::doAction(action);
        return;
    }
    action.state().push();
    action.traverse(*property);
    SoShape::doAction(action);
    action.state().pop();
}
