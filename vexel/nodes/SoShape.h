#pragma once

#include <memory>

#include <vexel/nodes/SoNode.h>

class SbBox3f;
class SoState;
struct SoShapeGeometry;

/**
 * Base of everything that can be seen.
 *
 * A shape knows how to make its geometry from its fields and from the state: coordinates, normals, bindings,
 * complexity. Actions ask for the geometry when they come to the shape.
 */
class VEXEL_API SoShape : public SoNode {
    SO_NODE_ABSTRACT(SoShape, SoNode)
public:
    void doAction(SoAction& action) override;
    bool affectsState() const override { return false; }

    /** Makes the geometry that the shape has with these values of the state. */
    virtual void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const = 0;

    /**
     * Box around the shape in its own space. The default builds the geometry; shapes that know better override it.
     */
    virtual SbBox3f computeBoundingBox(const SoState& state) const;

    /** What of the state the geometry depends on; geometry is shared between places where all of that is the same. */
    enum Dependency : unsigned {
        NOTHING = 0,
        ON_COORDINATES = 1,         /**< coordinates, normals, their bindings */
        ON_TEXTURE_COORDINATES = 2, /**< texture coordinates and their binding; whether there is any texture */
        ON_MATERIAL_BINDING = 4,
        ON_COMPLEXITY = 8,
        ON_SHAPE_HINTS = 16,
        ON_FONT = 32,
        ON_VIEW = 64,     /**< camera and viewport: size on the screen */
        BOX_ON_VIEW = 128 /**< the same, but for the bounding box alone */
    };
    virtual unsigned getDependencies() const = 0;

protected:
    SoShape() = default;
};
