#pragma once

#include <vexel/fields/SoMFColor.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/nodes/SoNode.h>

/**
 * Surface colours. Several values make several materials, which shapes choose by the material binding; a list that is
 * shorter than the others repeats its last value.
 */
class VEXEL_API SoMaterial : public SoNode {
    SO_NODE(SoMaterial, SoNode)
public:
    /** Reflected of light that comes from everywhere. */
    SoMFColor ambientColor{this, "ambientColor", SbColor(0.2f, 0.2f, 0.2f)};
    /** Reflected of light that comes from a source. */
    SoMFColor diffuseColor{this, "diffuseColor", SbColor(0.8f, 0.8f, 0.8f)};
    /** Of highlights. */
    SoMFColor specularColor{this, "specularColor", SbColor(0, 0, 0)};
    /** Given off without any light. */
    SoMFColor emissiveColor{this, "emissiveColor", SbColor(0, 0, 0)};
    /** 0 for wide highlights to 1 for sharp ones. */
    SoMFFloat shininess{this, "shininess", 0.2f};
    /** 0 opaque to 1 invisible. */
    SoMFFloat transparency{this, "transparency", 0.0f};

    void doAction(SoAction& action) override;
};
