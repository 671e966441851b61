#include <vexel/pick/detail/ThinCaster.h>

#include <algorithm>
#include <cmath>

#include <vexel/pick/PickQuery.h>
#include <vexel/pick/detail/ScreenDistance.h>
#include <vexel/render/RenderGeometry.h>
#include <vexel/render/detail/InstanceRecord.h>

namespace vexel {

namespace {

constexpr std::size_t RunLength = 8;

InstanceRecord recordOf(const SbMatrix& matrix)
{
    InstanceRecord record;
    record.setMatrix(matrix);
    return record;
}

Frustum frustumOf(const SbMatrix& circle, float reach)
{
    return Frustum::ofClipRectangle(circle[0], -reach, -reach, reach, reach);
}

/** Whether the middle of the circle is on the square that a sign fills. */
bool isOnSign(const PickQuery& query, const RenderSign& sign, const ScreenDistance& place)
{
    return std::max(std::fabs(place.x), std::fabs(place.y)) <= query.pixels(0.5f * static_cast<float>(sign.size));
}

} // namespace

Bounds ThinCaster::boxOf(std::uint32_t item) const
{
    return m_items[item].geometry->bounds().transformed(recordOf(m_items[item].matrix).rows);
}

void ThinCaster::add(std::uint32_t item)
{
    ++m_shapes[m_items[item].geometry->id()].users;
    m_places[item] = m_order.size();
    m_order.push_back(item);
    m_boxes.push(boxOf(item));
    m_widest = std::max(m_widest, m_items[item].pixelSize);
}

void ThinCaster::remove(std::uint32_t item)
{
    const std::size_t place = m_places[item];
    const std::uint32_t last = m_order.back();
    m_boxes.set(place, m_boxes[m_order.size() - 1]);
    m_order[place] = last;
    m_places[last] = place;
    m_places.erase(item);
    m_order.pop_back();
    m_boxes.pop();
    const auto shape = m_shapes.find(m_items[item].geometry->id());
    if (--shape->second.users == 0)
        m_shapes.erase(shape);
}

void ThinCaster::moved(std::uint32_t item)
{
    m_boxes.set(m_places[item], boxOf(item));
}

const BoundsPyramid& ThinCaster::runsOf(const RenderGeometry& geometry)
{
    BoundsPyramid& runs = m_shapes[geometry.id()].runs;
    const std::size_t count = geometry.primitiveCount();
    if (runs.size() > 0 || count == 0)
        return runs;
    const std::size_t per_primitive = geometry.primitive() == RenderPrimitive::Lines ? 2 : 1;
    std::vector<Bounds> boxes((count + RunLength - 1) / RunLength);
    for (std::size_t primitive = 0; primitive < count; ++primitive) {
        const std::uint32_t* vertices = geometry.primitiveVertices(primitive);
        for (std::size_t i = 0; i < per_primitive; ++i)
            boxes[primitive / RunLength].extend(&geometry.arrays().positions[vertices[i]][0]);
    }
    runs.assign(std::move(boxes));
    return runs;
}

void ThinCaster::findAll(const PickQuery& query, std::vector<PickHit>& hits)
{
    if (m_order.empty())
        return;
    const SbMatrix circle = query.circleMatrix(m_boxes.total());
    m_boxes.findVisible(frustumOf(circle, query.reach(m_widest)), [&](std::size_t first, std::size_t count) {
        for (std::size_t place = first; place < first + count; ++place)
            search(query, circle, m_order[place], hits);
    });
}

void ThinCaster::search(const PickQuery& query, const SbMatrix& circle, std::uint32_t item, std::vector<PickHit>& hits)
{
    const PickItem& picked = m_items[item];
    // An item that is drawn wider than the circle is hit where it is seen.
    const float reach = query.reach(picked.pixelSize);
    const RenderGeometry& geometry = *picked.geometry;
    const std::vector<SbVec3f>& positions = geometry.arrays().positions;
    const std::vector<RenderSign>& signs = geometry.arrays().signs;
    const bool lines = geometry.primitive() == RenderPrimitive::Lines;
    const SbMatrix to_circle = picked.matrix * circle;
    const auto test = [&](std::uint32_t primitive) {
        const std::uint32_t* vertices = geometry.primitiveVertices(primitive);
        const SbVec3f& a = positions[vertices[0]];
        const SbVec3f& b = positions[vertices[lines ? 1 : 0]];
        const ScreenDistance nearest(to_circle, a, b);
        const bool isHit = signs.empty() ? nearest.distance <= reach
                                         : nearest.distance <= 1 || isOnSign(query, signs[vertices[0]], nearest);
        if (!isHit)
            return;
        PickHit hit{item, picked.tag, primitive, {1 - nearest.along, lines ? nearest.along : 0, 0}, {}, 0};
        picked.matrix.multVecMatrix(a * (1 - nearest.along) + b * nearest.along, hit.point);
        hit.distance = (hit.point - query.origin()).dot(query.direction());
        if (hit.distance >= query.nearest() && hit.distance <= query.farthest() && !m_items.isClipped(item, hit.point))
            hits.push_back(hit);
    };
    const Frustum frustum = frustumOf(circle, reach).inSpaceBefore(recordOf(picked.matrix).rows);
    runsOf(geometry).findVisible(frustum, [&](std::size_t first, std::size_t count) {
        const std::size_t end = std::min((first + count) * RunLength, geometry.primitiveCount());
        for (std::size_t primitive = first * RunLength; primitive < end; ++primitive)
            test(static_cast<std::uint32_t>(primitive));
    });
}

} // namespace vexel
