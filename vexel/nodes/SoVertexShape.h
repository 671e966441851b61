#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/nodes/SoShape.h>

/** Base of the shapes that are made of coordinates. */
class VEXEL_API SoVertexShape : public SoShape {
    SO_NODE_ABSTRACT(SoVertexShape, SoShape)
public:
    /** A VertexProperty for this shape alone, instead of the coordinates, normals and colours in force. */
    SoSFNode vertexProperty{this, "vertexProperty"};

    void doAction(SoAction& action) override;
    unsigned getDependencies() const override
    {
        return ON_COORDINATES | ON_TEXTURE_COORDINATES | ON_MATERIAL_BINDING | ON_SHAPE_HINTS;
    }

protected:
    SoVertexShape() = default;
};
