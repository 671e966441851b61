#include <vexel/engines/SoComposeRotation.h>

#include <algorithm>
#include <vector>

void SoComposeRotation::evaluate(const SoEngineOutput&, SoField& target)
{
    const int numAxes = axis.getNum();
    const int numAngles = angle.getNum();
    const int count = std::max({numAxes, numAngles, 1});
    std::vector<SbRotation> rotations;
    rotations.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        rotations.emplace_back(numAxes > 0 ? axis[std::min(i, numAxes - 1)] : SbVec3f(0, 0, 1),
                               numAngles > 0 ? angle[std::min(i, numAngles - 1)] : 0.0f);
    }
    static_cast<SoMFRotation&>(target).setValues(std::move(rotations));
}
