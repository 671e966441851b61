#include <vexel/nodes/SoUnits.h>

#include <iterator>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

double SoUnits::metersPerUnit() const
{
    // In the order of the enumeration.
    static constexpr double Meters[] = {1,    0.01,   0.001,  1e-6,          1e-6,   1e-9,     1e-10,
                                        1000, 0.3048, 0.0254, 0.0254 / 72.0, 0.9144, 1609.344, 1852};
    const int unit = units.getValue();
    return unit >= 0 && unit < static_cast<int>(std::size(Meters)) ? Meters[unit] : 1;
}

SbMatrix SoUnits::getMatrix(const SoState& state) const
{
    SbMatrix matrix;
    if (!units.isIgnored())
        matrix.setScale(static_cast<float>(metersPerUnit() / state->metersPerUnit));
    return matrix;
}

void SoUnits::doAction(SoAction& action)
{
    SoTransformation::doAction(action);
    if (!units.isIgnored())
        action.state()->metersPerUnit = metersPerUnit();
}
