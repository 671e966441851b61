#include <vexel/base/SbBox3f.h>

#include <vexel/base/SbMatrix.h>

void SbBox3f::transform(const SbMatrix& matrix) noexcept
{
    if (isEmpty())
        return;
    const SbVec3f corners[2] = {getMin(), getMax()};
    makeEmpty();
    for (int i = 0; i < 8; ++i) {
        SbVec3f corner(corners[i & 1][0], corners[i >> 1 & 1][1], corners[i >> 2][2]);
        matrix.multVecMatrix(corner, corner);
        extendBy(corner);
    }
}
