#include <vexel/nodes/SoMultipleInstance.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/nodes/SoInstanceParameter.h>
#include <vexel/nodes/detail/Copies.h>
#include <vexel/state/SoState.h>

int SoMultipleInstance::countInstances() const
{
    int count = numInstances.getValue();
    if (count < 0) {
        for (int i = 0; i < instanceParameters.getNum(); ++i) {
            if (instanceParameters[i])
                count = std::max(count, instanceParameters[i]->getNumInstances());
        }
    }
    return std::min(count, MostCopies);
}

void SoMultipleInstance::doAction(SoAction& action)
{
    if (!action.needsState()) {
        SoGroup::doAction(action);
        return;
    }
    const int count = countInstances();
    for (int instance = 0; instance < count && !action.hasTerminated(); ++instance) {
        traverseCopy(*this, action, instance, [&](SoState&) {
            for (int i = 0; i < instanceParameters.getNum(); ++i) {
                if (instanceParameters[i])
                    instanceParameters[i]->applyInstance(action, instance);
            }
        });
    }
}
