#include <vexel/nodes/SoClipPlane.h>

#include <vexel/actions/SoAction.h>

void SoClipPlane::doAction(SoAction& action)
{
    if (!on.getValue() || on.isIgnored() || plane.isIgnored())
        return;
    SbPlane world = plane.getValue();
    world.transform(action.state()->model);
    action.state().addClipPlane(this, world);
}
