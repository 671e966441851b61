#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoNode.h>

/** How the normals in force are given to the parts, faces and vertices of shapes. */
class VEXEL_API SoNormalBinding : public SoNode {
    SO_NODE(SoNormalBinding, SoNode)
public:
    enum Binding {
        OVERALL,
        PER_PART,
        PER_PART_INDEXED,
        PER_FACE,
        PER_FACE_INDEXED,
        PER_VERTEX,
        PER_VERTEX_INDEXED,
        DEFAULT = PER_VERTEX_INDEXED,
        NONE = PER_VERTEX_INDEXED
    };
    static constexpr SoEnumEntry Binding_names[] = {{"OVERALL", OVERALL},
                                                    {"PER_PART", PER_PART},
                                                    {"PER_PART_INDEXED", PER_PART_INDEXED},
                                                    {"PER_FACE", PER_FACE},
                                                    {"PER_FACE_INDEXED", PER_FACE_INDEXED},
                                                    {"PER_VERTEX", PER_VERTEX},
                                                    {"PER_VERTEX_INDEXED", PER_VERTEX_INDEXED},
                                                    {"DEFAULT", DEFAULT},
                                                    {"NONE", NONE}};

    SoSFEnum value{this, "value", PER_VERTEX_INDEXED, Binding_names};

    void doAction(SoAction& action) override;
};
