#pragma once

#include <plotkit/u3d/U3DBitStream.h>
#include <plotkit/u3d/U3DProgress.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec4f.h>

#include <array>

/** Triangles, counter-clockwise seen from the front. */
struct U3DMesh {
    struct Corner {
        std::uint32_t position;
        std::uint32_t normal;
        std::uint32_t color; ///< counts only where there are colours
    };

    std::vector<SbVec3f> positions;
    std::vector<SbVec3f> normals;
    std::vector<SbVec4f> colors; ///< with opacity; empty when the material has the colour
    std::vector<std::array<Corner, 3>> faces;
};

/** Straight lines between positions, each in one of the shadings, which are numbered. */
struct U3DLineSet {
    struct Line {
        std::uint32_t from;
        std::uint32_t to;
        std::uint32_t shading;
    };

    std::vector<SbVec3f> positions;
    std::vector<Line> lines;
    std::uint32_t numShadings = 0;
};

/** A model resource as blocks hold it, except for its name, with which the data of both blocks begin. */
struct U3DModelResource {
    U3DBytes declaration;
    U3DBytes continuation;
};

/**
 * All triangles are part of the base mesh, where positions and normals stand exactly. The mesh must not be empty. What
 * is answered is incomplete when the progress is canceled.
 */
U3DModelResource encodeU3DMesh(const U3DMesh& mesh, U3DProgress& progress);
/**
 * Positions are rounded by a millionth of the diagonal of the box around them at most, provided that no coordinate is
 * more than four times as large as the diagonal. The line set must not be empty. What is
 * answered is incomplete when the progress is canceled.
 */
U3DModelResource encodeU3DLineSet(const U3DLineSet& lineSet, U3DProgress& progress);
