#pragma once

#include <plotkit/u3d/U3DMesh.h>
#include <plotkit/u3d/U3DShading.h>
#include <vexel/state/SoShapeGeometry.h>

class SoShape;
class SoState;

/**
 * What becomes of a shape at one place of a graph, in its own space: triangles without those of no area or with
 * coordinates that are no finite numbers, and lines. Points are left out.
 */
class U3DShape {
public:
    U3DShape(const SoState& state, const SoShape& shape);

    /** Without faces where there are none. Incomplete when the progress is canceled, like the line set. */
    U3DMesh mesh(U3DProgress& progress) const;
    U3DShading meshShading(const U3DMesh& mesh) const;
    bool showsBacks() const { return m_showsBacks; }

    /**
     * Without lines where there are none.
     * @param shadings  receives those that the lines number
     * @param origin  receives the place that positions are relative to
     */
    U3DLineSet lineSet(std::vector<U3DShading>& shadings, SbVec3f& origin, U3DProgress& progress) const;

private:
    class MeshBuilder;
    class LineBuilder;

    /** Diffuse colour and opacity of a vertex. */
    SbVec4f colorOf(std::uint32_t vertex) const;
    bool isVisible(std::uint32_t vertex) const;
    U3DShading plainShading(const SbVec4f& color) const;
    std::string materialName() const;

    const SoState& m_state;
    SoShapeGeometry m_geometry;
    bool m_isClockwise = false;
    bool m_showsBacks = true;
};
