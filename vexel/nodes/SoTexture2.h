#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoNode.h>

/** A picture on the shapes behind, in the present texture unit. */
class VEXEL_API SoTexture2 : public SoNode {
    SO_NODE(SoTexture2, SoNode)
public:
    enum Wrap { REPEAT, CLAMP };
    static constexpr SoEnumEntry Wrap_names[] = {{"REPEAT", REPEAT}, {"CLAMP", CLAMP}};
    enum Model {
        MODULATE, /**< multiplied with the lit colour */
        DECAL,    /**< over the lit colour by its alpha */
        BLEND,    /**< mixes the lit colour and blendColor by its grey */
        REPLACE   /**< instead of the lit colour */
    };
    static constexpr SoEnumEntry Model_names[] = {
        {"MODULATE", MODULATE}, {"DECAL", DECAL}, {"BLEND", BLEND}, {"REPLACE", REPLACE}};

    /** File of the picture; setting it reads the picture into image. */
    SoSFString filename{this, "filename"};
    SoSFImage image{this, "image"};
    /** What is outside 0 to 1. */
    SoSFEnum wrapS{this, "wrapS", REPEAT, Wrap_names};
    SoSFEnum wrapT{this, "wrapT", REPEAT, Wrap_names};
    SoSFEnum model{this, "model", MODULATE, Model_names};
    SoSFColor blendColor{this, "blendColor", SbColor(0, 0, 0)};

    void doAction(SoAction& action) override;
    void readFinished(SoInput& in) override;
    void notify(SoNotList& list) override;
};
