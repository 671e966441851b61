#include <vexel/nodes/SoAntiSquish.h>

#include <algorithm>
#include <cmath>

#include <vexel/base/SbRotation.h>
#include <vexel/state/SoState.h>

float SoAntiSquish::evenScale(const SbVec3f& scale, const SbMatrix& model) const
{
    switch (sizing.getValue()) {
    case X:
    case Y:
    case Z:
        return scale[sizing.getValue()];
    case BIGGEST_DIMENSION:
        return std::max({scale[0], scale[1], scale[2]});
    case SMALLEST_DIMENSION:
        return std::min({scale[0], scale[1], scale[2]});
    case LONGEST_DIAGONAL: {
        float longest = 0;
        for (const SbVec3f& corner : {SbVec3f(1, 1, 1), SbVec3f(-1, 1, 1), SbVec3f(1, -1, 1), SbVec3f(1, 1, -1)}) {
            SbVec3f diagonal;
            model.multDirMatrix(corner, diagonal);
            longest = std::max(longest, diagonal.length());
        }
        return longest / std::sqrt(3.0f);
    }
    default:
        return (scale[0] + scale[1] + scale[2]) / 3;
    }
}

SbMatrix SoAntiSquish::getMatrix(const SoState& state) const
{
    if (m_isKnown && !recalcAlways.getValue())
        return m_matrix;
    const SbMatrix& model = state->model;
    SbVec3f translation;
    SbVec3f scale;
    SbRotation rotation;
    SbRotation axes;
    model.getTransform(translation, rotation, scale, axes);
    m_isKnown = true;
    m_matrix.makeIdentity();
    // A model without extent along an axis cannot be evened out.
    if (!model.isInvertible())
        return m_matrix;
    SbMatrix even;
    const float factor = evenScale(scale, model);
    even.setTransform(translation, rotation, SbVec3f(factor, factor, factor));
    m_matrix = even * model.inverse();
    return m_matrix;
}
