#include <vexel/nodes/SoLight.h>

#include <vexel/actions/SoAction.h>

void SoLight::doAction(SoAction& action)
{
    if (on.getValue() && !on.isIgnored())
        action.state().addLight(this);
}
