#pragma once

#include <unordered_map>
#include <vector>

#include <vexel/pick/detail/PickItems.h>
#include <vexel/render/detail/BoundsPyramid.h>

namespace vexel {

/** Finds lines and points that pass near the middle of the query's circle on the screen. */
class ThinCaster {
public:
    explicit ThinCaster(const PickItems& items) : m_items(items) {}

    void add(std::uint32_t item);
    void remove(std::uint32_t item);
    void moved(std::uint32_t item);

    void findAll(const PickQuery& query, std::vector<PickHit>& hits);

private:
    /** Boxes around runs of neighbouring primitives, made when a query comes near. */
    struct Shape {
        std::uint32_t users = 0;
        BoundsPyramid runs;
    };

    Bounds boxOf(std::uint32_t item) const;
    const BoundsPyramid& runsOf(const RenderGeometry& geometry);
    void search(const PickQuery& query, const SbMatrix& circle, std::uint32_t item, std::vector<PickHit>& hits);

    const PickItems& m_items;
    std::unordered_map<std::uint64_t, Shape> m_shapes; // by the geometry's number
    std::vector<std::uint32_t> m_order;                // items in the order of the boxes
    std::unordered_map<std::uint32_t, std::size_t> m_places;
    BoundsPyramid m_boxes;
    float m_widest = 1; // pixels; the largest size of any item so far
};

} // namespace vexel
