#pragma once

#include <QPainterPath>
#include <cstdint>
#include <functional>
#include <vector>

#include <vexel/nodes/detail/PolygonTessellator.h>

struct SoShapeGeometry;

/** Fills outlines with triangles, and draws walls along them. */
class OutlineFiller {
public:
    /** Gives the place of a point of an outline that lies at a depth behind its plane. */
    using Place = std::function<SbVec3f(float x, float y, float depth)>;

    OutlineFiller(SoShapeGeometry& geometry, Place place);

    /** Adds the area inside the outline at a depth; @p normal is the way it faces. */
    void addArea(const QPainterPath& outline, float depth, const SbVec3f& normal, int part);
    /** Adds the walls from the plane of the outline down to the depth. */
    void addWalls(const QPainterPath& outline, float depth, int part);

private:
    std::uint32_t vertex(const SbVec3f& point, const SbVec3f& normal);

    SoShapeGeometry& m_geometry;
    Place m_place;
    SbVec3f m_normal;
    PolygonTessellator m_tessellator;
};
