#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <vector>

#include <vexel/base/SbVec3f.h>

class GLUtesselator;

/** Cuts polygons with any number of contours into triangles; contours inside others are holes. */
class PolygonTessellator {
public:
    /** Makes a vertex where edges cross: place, the four vertices about it, and how much each counts. */
    using Mix =
        std::function<std::uint32_t(const SbVec3f& point, const std::uint32_t (&from)[4], const float (&weights)[4])>;

    explicit PolygonTessellator(Mix mix);
    PolygonTessellator(const PolygonTessellator&) = delete;
    PolygonTessellator& operator=(const PolygonTessellator&) = delete;
    ~PolygonTessellator();

    /** Begins a polygon that faces along @p normal. */
    void begin(const SbVec3f& normal);
    /** Adds a ring of finite points with the numbers of their vertices. */
    void addContour(const std::vector<SbVec3f>& points, const std::vector<std::uint32_t>& vertices);
    /** Appends three vertex numbers for each triangle; counter-clockwise about the normal. */
    void end(std::vector<std::uint32_t>& triangles);

private:
    struct Vertex {
        double place[3];
        std::uint32_t number;
    };
    struct Callbacks;

    GLUtesselator* m_tessellator;
    Mix m_mix;
    // Places must not move while the polygon is cut.
    std::list<Vertex> m_vertices;
    std::vector<std::uint32_t> m_triangles;
    bool m_failed = false;
};
