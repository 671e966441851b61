#pragma once

#include <plotkit/hidden/ConvexPolygon.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbPlane.h>
#include <vexel/base/SbVec4f.h>

#include <vector>

class SoState;

/** A point of the picture: where on the page, and how deep; nearer ones have the smaller depth. */
struct ProjectedPoint {
    PagePoint place;
    double depth = 0;
};

/** How the camera of one place in the graph maps the world to a rectangle of the page. */
class PageProjection {
public:
    PageProjection(const SoState& state, const PageRect& picture);

    /**
     * Distances of a world point from what bounds the picture: positive where it is inside of all of them. They change
     * evenly in the world, so that they tell where an edge leaves.
     */
    ///@{
    std::size_t numBounds() const { return View_bounds + m_planes.size(); }
    double distance(std::size_t bound, const SbVec3f& world) const;
    ///@}
    bool contains(const SbVec3f& world) const;

    /** For a point inside. */
    ProjectedPoint project(const SbVec3f& world) const;

private:
    static constexpr std::size_t View_bounds = 6;

    struct Homogeneous {
        double x, y, z, w;
    };
    Homogeneous clip(const SbVec3f& world) const;

    SbMatrix m_matrix;
    std::vector<SbPlane> m_planes;
    PageRect m_picture;
};
