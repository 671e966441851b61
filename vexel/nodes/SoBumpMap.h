#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoNode.h>

/** A height picture that makes lit surfaces look uneven. */
class VEXEL_API SoBumpMap : public SoNode {
    SO_NODE(SoBumpMap, SoNode)
public:
    enum Wrap { REPEAT, CLAMP };
    static constexpr SoEnumEntry Wrap_names[] = {{"REPEAT", REPEAT}, {"CLAMP", CLAMP}};

    /** File of the picture; setting it reads the picture into image. */
    SoSFString filename{this, "filename"};
    /** Grey heights, or normals as colours. */
    SoSFImage image{this, "image"};
    SoSFEnum wrapS{this, "wrapS", REPEAT, Wrap_names};
    SoSFEnum wrapT{this, "wrapT", REPEAT, Wrap_names};

    void doAction(SoAction& action) override;
    void readFinished(SoInput& in) override;
    void notify(SoNotList& list) override;
};
