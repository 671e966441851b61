#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoNode.h>

/** How the texture coordinates in force are given to the vertices of shapes. */
class VEXEL_API SoTextureCoordinateBinding : public SoNode {
    SO_NODE(SoTextureCoordinateBinding, SoNode)
public:
    enum Binding { PER_VERTEX, PER_VERTEX_INDEXED, DEFAULT = PER_VERTEX_INDEXED };
    static constexpr SoEnumEntry Binding_names[] = {
        {"PER_VERTEX", PER_VERTEX}, {"PER_VERTEX_INDEXED", PER_VERTEX_INDEXED}, {"DEFAULT", DEFAULT}};

    SoSFEnum value{this, "value", PER_VERTEX_INDEXED, Binding_names};

    void doAction(SoAction& action) override;
};
