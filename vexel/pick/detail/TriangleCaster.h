#pragma once

#include <unordered_map>
#include <vector>

#include <vexel/pick/detail/PickItems.h>

struct RTCSceneTy;

namespace vexel {

/** Finds where rays meet triangles: one acceleration structure per shape, and one over all placements of shapes. */
class TriangleCaster {
public:
    explicit TriangleCaster(const PickItems& items);
    ~TriangleCaster();
    TriangleCaster(const TriangleCaster&) = delete;
    TriangleCaster& operator=(const TriangleCaster&) = delete;

    void add(std::uint32_t item);
    void remove(std::uint32_t item);
    void moved(std::uint32_t item);

    std::optional<PickHit> closest(const PickQuery& query);
    void findAll(const PickQuery& query, std::vector<PickHit>& hits);

private:
    struct Shape {
        std::shared_ptr<const RenderGeometry> geometry;
        RTCSceneTy* scene = nullptr;
        std::uint32_t users = 0;
        bool isBuilt = false;
    };

    Shape& acquire(const std::shared_ptr<const RenderGeometry>& geometry);
    void build(Shape& shape) const;
    void update();

    const PickItems& m_items;
    RTCSceneTy* m_scene;
    std::unordered_map<std::uint64_t, Shape> m_shapes; // by the geometry's number
    std::vector<std::uint64_t> m_unbuilt;
    std::size_t m_clippedItems = 0;
    bool m_changed = false;
};

} // namespace vexel
