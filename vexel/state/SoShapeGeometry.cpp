#include <vexel/state/SoShapeGeometry.h>

#include <cmath>

namespace {

bool isFinite(const SbVec3f& point)
{
    return std::isfinite(point[0]) && std::isfinite(point[1]) && std::isfinite(point[2]);
}

} // namespace

SbBox3f SoShapeGeometry::getBoundingBox() const
{
    SbBox3f box;
    for (const auto* indices : {&triangles, &lines, &pointVertices}) {
        for (const std::uint32_t index : *indices) {
            if (isFinite(points[index]))
                box.extendBy(points[index]);
        }
    }
    return box;
}
