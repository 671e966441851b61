#pragma once

#include <vector>

#include <vexel/nodes/detail/Bindings.h>
#include <vexel/nodes/detail/VertexBuilder.h>

class SoIndexedShape;
class SoState;
struct SoShapeGeometry;

/** Adds lines and points to the geometry, one after the other. */
class LineBuilder {
public:
    LineBuilder(const SoState& state, SoShapeGeometry& geometry, const SoIndexedShape* indices, std::size_t numUses);

    /** A line through corners, those left out whose coordinate does not exist. PER_PART binds to its segments. */
    void addLine(const std::vector<ShapeCorner>& corners, int line);
    void addPoint(const ShapeCorner& corner);
    void finish();

private:
    SoShapeGeometry& m_geometry;
    VertexBuilder m_vertices;
    int m_segment = 0;
};
