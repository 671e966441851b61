#pragma once

#include <vexel/nodes/SoNode.h>

/** Base of the nodes that compute texture coordinates from points and normals, for the present texture unit. */
class VEXEL_API SoTextureCoordinateFunction : public SoNode {
    SO_NODE_ABSTRACT(SoTextureCoordinateFunction, SoNode)
public:
    void doAction(SoAction& action) override;

protected:
    SoTextureCoordinateFunction() = default;
};
