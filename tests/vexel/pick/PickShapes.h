#pragma once

#include <memory>
#include <vector>

#include <vexel/pick/PickQuery.h>
#include <vexel/pick/PickScene.h>
#include <vexel/render/RenderGeometry.h>
#include <vexel/render/RenderView.h>

namespace vexel {

inline std::shared_ptr<const RenderGeometry> shapeOf(RenderPrimitive primitive, std::vector<SbVec3f> positions,
                                                     std::vector<std::uint32_t> indices = {})
{
    RenderGeometryArrays arrays;
    arrays.primitive = primitive;
    arrays.positions = std::move(positions);
    arrays.indices = std::move(indices);
    return std::make_shared<const RenderGeometry>(std::move(arrays));
}

/** Two triangles: below (0) and above (1) the diagonal from (-1,-1) to (1,1). */
inline std::shared_ptr<const RenderGeometry> squareShape()
{
    return shapeOf(RenderPrimitive::Triangles,
                   {SbVec3f(-1, -1, 0), SbVec3f(1, -1, 0), SbVec3f(1, 1, 0), SbVec3f(-1, 1, 0)}, {0, 1, 2, 0, 2, 3});
}

inline SbMatrix placed(float x, float y, float z, float scale = 1)
{
    SbMatrix matrix;
    matrix.setScale(scale);
    for (int axis = 0; axis < 3; ++axis)
        matrix[3][axis] = axis == 0 ? x : axis == 1 ? y : z;
    return matrix;
}

/** From far in front of the viewer's side, along -z. */
inline PickQuery downAt(float x, float y, float radius = 0)
{
    return PickQuery::alongRay(SbVec3f(x, y, 100), SbVec3f(0, 0, -1), radius);
}

/** 100 x 100 pixels; x and y from -1 to 1 and z from -1 to 1 are seen, along -z. */
inline RenderView flatView()
{
    RenderView view;
    view.viewport = {0, 0, 100, 100};
    view.projection[2][2] = -1;
    return view;
}

/** The same, in perspective: right angle of view, near plane at 0.1, far plane at 100. */
inline RenderView deepView()
{
    RenderView view = flatView();
    const float n = 0.1f;
    const float f = 100;
    view.projection = SbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -(f + n) / (f - n), -1, 0, 0, -2 * f * n / (f - n), 0);
    return view;
}

} // namespace vexel
