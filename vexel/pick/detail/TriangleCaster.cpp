#include <vexel/pick/detail/TriangleCaster.h>

#include <cmath>

#include <embree3/rtcore.h>

#include <vexel/pick/PickQuery.h>
#include <vexel/render/RenderGeometry.h>

namespace vexel {

namespace {

/** One for the process: its worker threads are shared by all scenes, and it is never destroyed because scenes may be
    static objects of the host. */
RTCDevice device()
{
    static const RTCDevice shared = rtcNewDevice(nullptr);
    return shared;
}

/** Robust: rays must not slip through between neighbouring triangles. */
RTCSceneFlags sceneFlags(RTCSceneFlags more)
{
    return static_cast<RTCSceneFlags>(RTC_SCENE_FLAG_ROBUST | RTC_SCENE_FLAG_CONTEXT_FILTER_FUNCTION | more);
}

/** What the filter function is told about the query that runs. */
struct Cast {
    RTCIntersectContext context; // first, so that the filter can get from it to the rest
    const PickItems* items;
    const PickQuery* query;
    std::vector<PickHit>* all; // null: the closest one is wanted
};

PickHit hitOf(const Cast& cast, const RTCHit& hit, float distance)
{
    // From the query, not from the ray: inside an instance that one is in the shape's space.
    const SbVec3f point = cast.query->origin() + cast.query->direction() * distance;
    const std::uint32_t item = hit.instID[0];
    return {item, (*cast.items)[item].tag, hit.primID, {1 - hit.u - hit.v, hit.u, hit.v}, point, distance};
}

/** Drops hits that a clip plane hides, and all hits when collecting, so that the ray goes on. */
void filterHit(const RTCFilterFunctionNArguments* arguments)
{
    auto& cast = *reinterpret_cast<Cast*>(arguments->context);
    const auto& ray = *reinterpret_cast<const RTCRay*>(arguments->ray);
    const auto& hit = *reinterpret_cast<const RTCHit*>(arguments->hit);
    const PickHit found = hitOf(cast, hit, ray.tfar);
    if (cast.items->isClipped(found.item, found.point)) {
        arguments->valid[0] = 0;
    } else if (cast.all) {
        cast.all->push_back(found);
        arguments->valid[0] = 0;
    }
}

/** Runs a query. The result holds the closest hit that the filter let pass. */
RTCRayHit run(RTCScene scene, Cast& cast, bool filtered)
{
    rtcInitIntersectContext(&cast.context);
    if (filtered)
        cast.context.filter = filterHit;
    const PickQuery& query = *cast.query;
    RTCRayHit ray{};
    ray.ray.org_x = query.origin()[0];
    ray.ray.org_y = query.origin()[1];
    ray.ray.org_z = query.origin()[2];
    ray.ray.dir_x = query.direction()[0];
    ray.ray.dir_y = query.direction()[1];
    ray.ray.dir_z = query.direction()[2];
    ray.ray.tnear = query.nearest();
    ray.ray.tfar = query.farthest();
    ray.ray.mask = ~0u;
    ray.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    ray.hit.instID[0] = RTC_INVALID_GEOMETRY_ID;
    rtcIntersect1(scene, &cast.context, &ray);
    return ray;
}

bool isUsable(const SbMatrix& matrix)
{
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column) {
            if (!std::isfinite(matrix[row][column]))
                return false;
        }
    }
    return matrix.isInvertible();
}

} // namespace

TriangleCaster::TriangleCaster(const PickItems& items) : m_items(items), m_scene(rtcNewScene(device()))
{
    rtcSetSceneFlags(m_scene, sceneFlags(RTC_SCENE_FLAG_DYNAMIC));
}

TriangleCaster::~TriangleCaster()
{
    rtcReleaseScene(m_scene);
    for (const auto& [id, shape] : m_shapes)
        rtcReleaseScene(shape.scene);
}

TriangleCaster::Shape& TriangleCaster::acquire(const std::shared_ptr<const RenderGeometry>& geometry)
{
    Shape& shape = m_shapes[geometry->id()];
    if (shape.users++ == 0) {
        shape.geometry = geometry;
        shape.scene = rtcNewScene(device());
        rtcSetSceneFlags(shape.scene, sceneFlags(RTC_SCENE_FLAG_NONE));
        m_unbuilt.push_back(geometry->id());
    }
    return shape;
}

void TriangleCaster::build(Shape& shape) const
{
    const RenderGeometryArrays& arrays = shape.geometry->arrays();
    RTCGeometry triangles = rtcNewGeometry(device(), RTC_GEOMETRY_TYPE_TRIANGLE);
    rtcSetSharedGeometryBuffer(triangles, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3, arrays.positions.data(), 0,
                               sizeof(SbVec3f), arrays.positions.size());
    rtcSetSharedGeometryBuffer(triangles, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3, arrays.indices.data(), 0,
                               3 * sizeof(std::uint32_t), shape.geometry->primitiveCount());
    rtcCommitGeometry(triangles);
    rtcAttachGeometry(shape.scene, triangles);
    rtcReleaseGeometry(triangles);
    rtcCommitScene(shape.scene);
    shape.isBuilt = true;
}

void TriangleCaster::add(std::uint32_t item)
{
    const Shape& shape = acquire(m_items[item].geometry);
    RTCGeometry instance = rtcNewGeometry(device(), RTC_GEOMETRY_TYPE_INSTANCE);
    rtcSetGeometryInstancedScene(instance, shape.scene);
    rtcAttachGeometryByID(m_scene, instance, item);
    rtcReleaseGeometry(instance);
    m_clippedItems += m_items[item].surroundings != nullptr;
    moved(item);
}

void TriangleCaster::remove(std::uint32_t item)
{
    rtcDetachGeometry(m_scene, item);
    m_clippedItems -= m_items[item].surroundings != nullptr;
    m_changed = true;
    const auto shape = m_shapes.find(m_items[item].geometry->id());
    if (--shape->second.users)
        return;
    rtcReleaseScene(shape->second.scene);
    m_shapes.erase(shape);
}

void TriangleCaster::moved(std::uint32_t item)
{
    const SbMatrix& matrix = m_items[item].matrix;
    const RTCGeometry instance = rtcGetGeometry(m_scene, item);
    if (isUsable(matrix)) {
        rtcSetGeometryTransform(instance, 0, RTC_FORMAT_FLOAT4X4_COLUMN_MAJOR, &matrix[0][0]);
        rtcEnableGeometry(instance);
    } else {
        rtcDisableGeometry(instance);
    }
    rtcCommitGeometry(instance);
    m_changed = true;
}

void TriangleCaster::update()
{
    if (!m_changed)
        return;
    for (const std::uint64_t id : m_unbuilt) {
        const auto shape = m_shapes.find(id);
        if (shape != m_shapes.end() && !shape->second.isBuilt)
            build(shape->second);
    }
    m_unbuilt.clear();
    rtcCommitScene(m_scene);
    m_changed = false;
}

std::optional<PickHit> TriangleCaster::closest(const PickQuery& query)
{
    update();
    Cast closest{{}, &m_items, &query, nullptr};
    const RTCRayHit ray = run(m_scene, closest, m_clippedItems > 0);
    if (ray.hit.geomID == RTC_INVALID_GEOMETRY_ID)
        return std::nullopt;
    return hitOf(closest, ray.hit, ray.ray.tfar);
}

void TriangleCaster::findAll(const PickQuery& query, std::vector<PickHit>& hits)
{
    update();
    Cast collecting{{}, &m_items, &query, &hits};
    run(m_scene, collecting, true);
}

} // namespace vexel
