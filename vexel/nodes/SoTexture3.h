#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFImage3.h>
#include <vexel/nodes/SoNode.h>

/** A volume texture on the shapes behind, in the present texture unit. */
class VEXEL_API SoTexture3 : public SoNode {
    SO_NODE(SoTexture3, SoNode)
public:
    enum Wrap { REPEAT, CLAMP };
    static constexpr SoEnumEntry Wrap_names[] = {{"REPEAT", REPEAT}, {"CLAMP", CLAMP}};
    enum Model { MODULATE, DECAL, BLEND, REPLACE };
    static constexpr SoEnumEntry Model_names[] = {
        {"MODULATE", MODULATE}, {"DECAL", DECAL}, {"BLEND", BLEND}, {"REPLACE", REPLACE}};

    /** Files of the slices, front first, all of one size; setting them reads the slices into images. */
    SoMFString filenames{this, "filenames"};
    SoSFImage3 images{this, "images"};
    SoSFEnum wrapR{this, "wrapR", REPEAT, Wrap_names};
    SoSFEnum wrapS{this, "wrapS", REPEAT, Wrap_names};
    SoSFEnum wrapT{this, "wrapT", REPEAT, Wrap_names};
    SoSFEnum model{this, "model", MODULATE, Model_names};
    SoSFColor blendColor{this, "blendColor", SbColor(0, 0, 0)};

    void doAction(SoAction& action) override;
    void readFinished(SoInput& in) override;
    void notify(SoNotList& list) override;

private:
    void loadSlices(const SoInput* in);
};
