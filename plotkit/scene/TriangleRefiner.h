#pragma once

#include <plotkit/scene/PageProjection.h>
#include <plotkit/scene/SurfaceShader.h>

#include <array>
#include <functional>

/** A point of a surface on the page, with its colour. */
struct ShadedPoint {
    SurfacePoint surface;
    ProjectedPoint projected;
    PageColor color;
};

/**
 * Cuts a triangle into parts in each of which the colour changes so evenly that its corners tell it. Whether an edge is
 * cut depends on that edge alone, so that triangles with a common edge stay together.
 */
class TriangleRefiner {
public:
    using Corners = std::array<ShadedPoint, 3>;
    using EmitCB = std::function<void(const Corners& corners)>;

    TriangleRefiner(const PageProjection& projection, const SurfaceShader& shader, EmitCB emit);

    ShadedPoint shade(const SurfacePoint& point) const;
    void refine(const Corners& corners) const { refine(corners, 0); }

private:
    void refine(const Corners& corners, int depth) const;
    bool isEven(const ShadedPoint& a, const ShadedPoint& b, const ShadedPoint& middle) const;

    const PageProjection& m_projection;
    const SurfaceShader& m_shader;
    EmitCB m_emit;
    double m_longest; ///< an edge that is not looked at more closely, in millimetres
};
