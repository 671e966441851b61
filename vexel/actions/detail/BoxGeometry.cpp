#include <vexel/actions/detail/BoxGeometry.h>

#include <vexel/render/RenderGeometry.h>

namespace vexel {

std::shared_ptr<const RenderGeometry> boxGeometry(const Bounds& box)
{
    if (box.isEmpty())
        return nullptr;
    RenderGeometryArrays arrays;
    // Bit i of a corner's number says whether it is at the far end of axis i.
    for (int corner = 0; corner < 8; ++corner) {
        arrays.positions.push_back(SbVec3f(corner & 1 ? box.hi[0] : box.lo[0], corner & 2 ? box.hi[1] : box.lo[1],
                                           corner & 4 ? box.hi[2] : box.lo[2]));
    }
    arrays.indices = {0, 2, 1, 1, 2, 3, 4, 5, 6, 5, 7, 6, 0, 1, 4, 1, 5, 4,
                      2, 6, 3, 3, 6, 7, 0, 4, 2, 2, 4, 6, 1, 3, 5, 3, 7, 5};
    return std::make_shared<const RenderGeometry>(std::move(arrays));
}

} // namespace vexel
