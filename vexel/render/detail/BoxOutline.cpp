#include <vexel/render/detail/BoxOutline.h>

#include <vexel/render/RenderGeometry.h>

namespace vexel {

namespace {

/** Edges of the cube from (0,0,0) to (1,1,1); bit k of a corner's number is its coordinate k. */
std::shared_ptr<const RenderGeometry> unitCube()
{
    static const std::shared_ptr<const RenderGeometry> cube = [] {
        RenderGeometryArrays arrays;
        arrays.primitive = RenderPrimitive::Lines;
        for (std::uint32_t corner = 0; corner < 8; ++corner) {
            arrays.positions.emplace_back(corner & 1, corner >> 1 & 1, corner >> 2);
            for (std::uint32_t axis = 1; axis < 8; axis <<= 1) {
                if (!(corner & axis))
                    arrays.indices.insert(arrays.indices.end(), {corner, corner | axis});
            }
        }
        return std::make_shared<const RenderGeometry>(std::move(arrays));
    }();
    return cube;
}

} // namespace

BoxOutline::BoxOutline(const Bounds& box)
{
    RenderPacket packet;
    packet.geometry = unitCube();
    for (int axis = 0; axis < 3; ++axis) {
        packet.matrix[axis][axis] = box.hi[axis] - box.lo[axis];
        packet.matrix[3][axis] = box.lo[axis];
    }
    m_packet = m_list.add(m_list.addSegment({}), packet);
}

} // namespace vexel
