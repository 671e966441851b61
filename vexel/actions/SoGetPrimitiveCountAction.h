#pragma once

#include <cstdint>

#include <vexel/actions/SoAction.h>

/** Counts what a graph consists of, each reference to a shared shape anew. */
class VEXEL_API SoGetPrimitiveCountAction : public SoAction {
    SO_ACTION(SoGetPrimitiveCountAction, SoAction)
public:
    SoGetPrimitiveCountAction() = default;

    std::int64_t getTriangleCount() const { return m_triangles; }
    std::int64_t getLineCount() const { return m_lines; }
    std::int64_t getPointCount() const { return m_points; }
    std::int64_t getShapeCount() const { return m_shapes; }

    void visitShape(SoShape& shape) override;

protected:
    void beginTraversal() override;

private:
    std::int64_t m_triangles = 0;
    std::int64_t m_lines = 0;
    std::int64_t m_points = 0;
    std::int64_t m_shapes = 0;
};
