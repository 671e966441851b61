#pragma once

#include <vexel/base/SbBox3f.h>
#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoVertexShape.h>

/**
 * Base of the shapes that choose from the coordinates in force by index. In the index lists for vertices, -1 ends a
 * face, line or strip; indices of coordinates that do not exist are left out.
 */
class VEXEL_API SoIndexedShape : public SoVertexShape {
    SO_NODE_ABSTRACT(SoIndexedShape, SoVertexShape)
public:
    SoMFInt32 coordIndex{this, "coordIndex", 0};
    /** For the indexed material bindings; with -1 alone, coordIndex counts for vertices. */
    SoMFInt32 materialIndex{this, "materialIndex", -1};
    SoMFInt32 normalIndex{this, "normalIndex", -1};
    SoMFInt32 textureCoordIndex{this, "textureCoordIndex", -1};

    SbBox3f computeBoundingBox(const SoState& state) const override;

protected:
    SoIndexedShape() = default;
};
