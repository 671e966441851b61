#pragma once

#include <plotkit/scene/PagePrimitives.h>
#include <plotkit/scene/PageProjection.h>
#include <plotkit/scene/TriangleRefiner.h>
#include <vexel/state/SoShapeGeometry.h>

class SoShape;

/** Lays one shape on the page. */
class ShapeWriter {
public:
    /** @param pixel  the unit of line widths and sizes of points, in millimetres */
    ShapeWriter(const SoState& state, const SoShape& shape, const PageRect& picture, double pixel,
                PagePrimitives& primitives);

    void write();

private:
    SurfacePoint pointOf(std::uint32_t index) const;
    std::vector<SurfacePoint> inPicture(std::vector<SurfacePoint> points, bool isClosed) const;
    PageColor colorOf(const SurfacePoint& point) const;
    LineStyle lineStyle(const PageColor& color) const;

    void addTriangle(const std::uint32_t* indices);
    void addPart(const TriangleRefiner::Corners& corners);
    void addEdges();
    void addSegment(std::uint32_t from, std::uint32_t to);
    /** @param marker  the sign that it is drawn as; -1: a dot */
    void addPoint(std::uint32_t index, int marker = -1);
    void addSign(const ProjectedPoint& at, int marker, const PageColor& color);

    const SoState& m_state;
    const SoShape& m_shape;
    PageProjection m_projection;
    SurfaceShader m_shader;
    TriangleRefiner m_refiner;
    double m_pixel;
    PagePrimitives& m_primitives;
    SoShapeGeometry m_geometry;
    SbMatrix m_normalMatrix;
    bool m_isSolid = false; ///< backs of its faces are never seen
    bool m_isClockwise = false;
};
