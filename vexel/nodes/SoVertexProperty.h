#pragma once

#include <vexel/fields/SoMFUInt32.h>
#include <vexel/fields/SoMFVec2f.h>
#include <vexel/fields/SoMFVec3f.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/nodes/SoNormalBinding.h>
#include <vexel/nodes/SoTextureCoordinateBinding.h>

/**
 * All that belongs to the vertices of shapes in one node. In the vertexProperty field of a shape it is for that shape
 * only; as a child of a group it is for all shapes behind. Empty lists change nothing.
 */
class VEXEL_API SoVertexProperty : public SoNode {
    SO_NODE(SoVertexProperty, SoNode)
public:
    SoMFVec3f vertex{this, "vertex"};
    SoMFVec3f normal{this, "normal"};
    SoMFVec2f texCoord{this, "texCoord"};
    /** Counts instead of texCoord when it is not empty. */
    SoMFVec3f texCoord3{this, "texCoord3"};
    /** 0xRRGGBBAA; an alpha of 0xff is opaque. */
    SoMFUInt32 orderedRGBA{this, "orderedRGBA"};
    /** Counts with orderedRGBA only. */
    SoSFEnum materialBinding{this, "materialBinding", SoMaterialBinding::OVERALL, SoMaterialBinding::Binding_names};
    /** Counts with normal only. */
    SoSFEnum normalBinding{this, "normalBinding", SoNormalBinding::PER_VERTEX_INDEXED, SoNormalBinding::Binding_names};
    /** Counts with texture coordinates only. */
    SoSFEnum textureBinding{this, "textureBinding", SoTextureCoordinateBinding::PER_VERTEX_INDEXED,
                            SoTextureCoordinateBinding::Binding_names};

    void doAction(SoAction& action) override;
};
