#pragma once

#include <vector>

#include <vexel/base/SbBox3f.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFBufferObject.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFUInt32.h>
#include <vexel/nodes/SoShape.h>

/** A shape whose vertices stand in buffer objects, which several shapes may share. */
class VEXEL_API SoBufferedShape : public SoShape {
    SO_NODE(SoBufferedShape, SoShape)
public:
    enum ShapeType { POINTS, LINES, LINE_STRIP, LINE_LOOP, TRIANGLES, TRIANGLE_STRIP, TRIANGLE_FAN, QUADS };
    static constexpr SoEnumEntry ShapeType_names[] = {{"POINTS", POINTS},
                                                      {"LINES", LINES},
                                                      {"LINE_STRIP", LINE_STRIP},
                                                      {"LINE_LOOP", LINE_LOOP},
                                                      {"TRIANGLES", TRIANGLES},
                                                      {"TRIANGLE_STRIP", TRIANGLE_STRIP},
                                                      {"TRIANGLE_FAN", TRIANGLE_FAN},
                                                      {"QUADS", QUADS}};

    /** How the vertices, in the order of the indices, make primitives. */
    SoSFEnum shapeType{this, "shapeType", TRIANGLES, ShapeType_names};
    /** Two to four components for each vertex. */
    SoSFBufferObject vertexBuffer{this, "vertexBuffer"};
    /** Three components for each vertex; none for normals made from the faces. */
    SoSFBufferObject normalBuffer{this, "normalBuffer"};
    /** Three or four components for each vertex: from 0 to 1 when they are real numbers, to 255 otherwise. */
    SoSFBufferObject colorBuffer{this, "colorBuffer"};
    /** Two or three components for each vertex. */
    SoSFBufferObject texCoordsBuffer{this, "texCoordsBuffer"};
    /** Vertices by number; none for all vertices in their order. */
    SoSFBufferObject indexBuffer{this, "indexBuffer"};
    /** The first index that is used, and how many; -1 for all. */
    SoSFUInt32 indexOffset{this, "indexOffset", 0};
    SoSFInt32 numIndices{this, "numIndices", -1};

    /** Puts the colours into the state as those of the shape. */
    void doAction(SoAction& action) override;
    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    SbBox3f computeBoundingBox(const SoState& state) const override;
    unsigned getDependencies() const override { return ON_SHAPE_HINTS; }

private:
    std::vector<std::uint32_t> usedIndices() const;

    std::vector<std::uint32_t> m_colors;
};
