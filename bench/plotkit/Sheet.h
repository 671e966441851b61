#pragma once

#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoIndexedFaceSet.h>
#include <vexel/nodes/SoSeparator.h>

#include <cmath>
#include <cstdint>
#include <vector>

/** A wavy sheet of about so many triangles, referenced. */
inline SoSeparator* makeSheet(int numTriangles)
{
    const int side = int(std::sqrt(numTriangles / 2)) + 1;
    auto* root = new SoSeparator;
    root->ref();
    std::vector<SbVec3f> points;
    std::vector<std::int32_t> indices;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            points.emplace_back(float(x) * 0.173f, float(y) * 0.219f, std::sin(float(x + y) * 0.1f));
    }
    for (int y = 0; y + 1 < side; ++y) {
        for (int x = 0; x + 1 < side; ++x) {
            const int a = y * side + x;
            for (const int index : {a, a + 1, a + side, -1, a + 1, a + side + 1, a + side, -1})
                indices.push_back(index);
        }
    }
    auto* coordinates = new SoCoordinate3;
    auto* faces = new SoIndexedFaceSet;
    coordinates->point.setValues(std::move(points));
    faces->coordIndex.setValues(std::move(indices));
    root->addChild(coordinates);
    root->addChild(faces);
    return root;
}
