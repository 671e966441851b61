#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoNode.h>

/** What may be taken for granted about faces made of vertices. */
class VEXEL_API SoShapeHints : public SoNode {
    SO_NODE(SoShapeHints, SoNode)
public:
    enum VertexOrdering { UNKNOWN_ORDERING, CLOCKWISE, COUNTERCLOCKWISE };
    static constexpr SoEnumEntry VertexOrdering_names[] = {
        {"UNKNOWN_ORDERING", UNKNOWN_ORDERING}, {"CLOCKWISE", CLOCKWISE}, {"COUNTERCLOCKWISE", COUNTERCLOCKWISE}};
    enum ShapeType { UNKNOWN_SHAPE_TYPE, SOLID };
    static constexpr SoEnumEntry ShapeType_names[] = {{"UNKNOWN_SHAPE_TYPE", UNKNOWN_SHAPE_TYPE}, {"SOLID", SOLID}};
    enum FaceType { UNKNOWN_FACE_TYPE, CONVEX };
    static constexpr SoEnumEntry FaceType_names[] = {{"UNKNOWN_FACE_TYPE", UNKNOWN_FACE_TYPE}, {"CONVEX", CONVEX}};

    /** Order of the vertices of a face as seen from outside; when unknown, faces are lit on both sides. */
    SoSFEnum vertexOrdering{this, "vertexOrdering", UNKNOWN_ORDERING, VertexOrdering_names};
    /** SOLID with a known order lets the backs of faces be left out. */
    SoSFEnum shapeType{this, "shapeType", UNKNOWN_SHAPE_TYPE, ShapeType_names};
    /** Faces of unknown type may be concave, which takes longer to cut into triangles. */
    SoSFEnum faceType{this, "faceType", CONVEX, FaceType_names};
    /** Generated normals are smooth over edges that bend less than this angle, in radians. */
    SoSFFloat creaseAngle{this, "creaseAngle", 0.5f};

    void doAction(SoAction& action) override;
};
