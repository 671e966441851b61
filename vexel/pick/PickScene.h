#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/VexelApi.h>

namespace vexel {

class PickQuery;
class RenderGeometry;
class RenderSurroundings;

/** One shape in one place that can be picked. */
struct PickItem {
    std::shared_ptr<const RenderGeometry> geometry;
    SbMatrix matrix;                                        ///< from the shape's space to the world; affine
    std::shared_ptr<const RenderSurroundings> surroundings; ///< its clip planes hide what they cut away
    float pixelSize = 1;   ///< width of lines, size of points: what is seen can be hit, also beyond the radius
    bool inFront = false;  ///< seen before everything that is not, whatever the distances
    std::uint64_t tag = 0; ///< the caller's own mark
};

/** A place where a query met an item. */
struct PickHit {
    std::uint32_t item;
    std::uint64_t tag;
    std::uint32_t primitive; ///< number of the triangle, line or point in its geometry
    float weights[3];        ///< how much each vertex of the primitive contributes to the point
    SbVec3f point;           ///< in world space
    float distance;          ///< along the ray
};

/**
 * Everything that can be picked, with the structures that find it fast. They are built when a query needs them first,
 * and brought up to date by the next query after a change. Not thread-safe.
 */
class VEXEL_API PickScene {
public:
    using Item = std::uint32_t;

    PickScene();
    ~PickScene();
    PickScene(const PickScene&) = delete;
    PickScene& operator=(const PickScene&) = delete;

    Item add(const PickItem& item);
    void remove(Item item);
    void setMatrix(Item item, const SbMatrix& matrix);
    void setGeometry(Item item, std::shared_ptr<const RenderGeometry> geometry);
    const PickItem& item(Item item) const;

    /** The hit that is seen first: the one nearest to the start of the ray, unless others are in front. */
    std::optional<PickHit> closest(const PickQuery& query);

    /** All hits, those in front first, each time the nearest first. A closed surface is hit where the ray enters and
     * where it leaves. */
    std::vector<PickHit> all(const PickQuery& query);

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace vexel
