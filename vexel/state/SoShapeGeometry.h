#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/VexelApi.h>

/**
 * What a shape consists of, in its own space: vertices, and the triangles, lines and points between them. Drawing,
 * picking, bounding boxes and primitive callbacks all work on it.
 *
 * Arrays that do not apply are empty; all others have one entry per vertex, or per triangle, line or point as named.
 */
struct VEXEL_API SoShapeGeometry {
    std::vector<SbVec3f> points;
    /** Unit normals. */
    std::vector<SbVec3f> normals;
    /** Texture coordinates; the third component counts for volume textures only. */
    std::vector<SbVec3f> textureCoordinates;
    /** Index of each vertex's material in the material lists of the state; empty when all are 0. */
    std::vector<std::uint32_t> materialIndices;
    /** For each vertex the index of the coordinate in the state that it came from; empty for shapes without. */
    std::vector<std::int32_t> coordinateIndices;

    /** For each vertex the sign that it is drawn as where it is a point, by SoMarkerSet::markerOf(); empty for none. */
    std::vector<std::int32_t> markers;

    /** Vertex indices: three for each triangle, two for each line segment, one for each point. */
    std::vector<std::uint32_t> triangles;
    std::vector<std::uint32_t> lines;
    std::vector<std::uint32_t> pointVertices;

    /** For each triangle the face it is part of, for each line segment the line; empty when they are numbered alike. */
    std::vector<std::int32_t> triangleFaces;
    std::vector<std::int32_t> lineParts;
    /** Shape-specific part of each triangle, such as the side of a cylinder; empty when all are 0. */
    std::vector<std::int32_t> triangleParts;
    /** Pairs of vertices: the edges of the faces that were cut into triangles; empty when the triangles are the faces.
     */
    std::vector<std::uint32_t> outline;

    std::size_t getNumTriangles() const { return triangles.size() / 3; }
    std::size_t getNumLines() const { return lines.size() / 2; }
    std::size_t getNumPoints() const { return pointVertices.size(); }
    bool isEmpty() const { return triangles.empty() && lines.empty() && pointVertices.empty(); }
    /** Box around the vertices that primitives use, coordinates that are no finite numbers left aside. */
    SbBox3f getBoundingBox() const;
};
