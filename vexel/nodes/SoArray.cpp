#include <vexel/nodes/SoArray.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/nodes/detail/Copies.h>
#include <vexel/state/SoState.h>

void SoArray::doAction(SoAction& action)
{
    if (!action.needsState()) {
        SoGroup::doAction(action);
        return;
    }
    const int counts[3] = {numElements1.getValue(), numElements2.getValue(), numElements3.getValue()};
    const SbVec3f steps[3] = {separation1.getValue(), separation2.getValue(), separation3.getValue()};
    SbVec3f first;
    for (int i = 0; i < 3; ++i)
        first -= steps[i] * (static_cast<float>(counts[i] - 1) * static_cast<float>(origin.getValue()) / 2);
    int number = 0;
    for (int k = 0; k < counts[2]; ++k) {
        for (int j = 0; j < counts[1]; ++j) {
            for (int i = 0; i < counts[0]; ++i) {
                if (number == MostCopies) {
                    SoDebugError::postWarning("SoArray::doAction", "only the first %d copies are shown", MostCopies);
                    return;
                }
                const SbVec3f place = first + steps[0] * static_cast<float>(i) + steps[1] * static_cast<float>(j) +
                                      steps[2] * static_cast<float>(k);
                traverseCopy(*this, action, number++, [&](SoState& state) {
                    SbMatrix move;
                    move.setTranslate(place);
                    state->model.multLeft(move);
                });
                if (action.hasTerminated())
                    return;
            }
        }
    }
}
