#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoFont.h>

/** A font by its looks; it counts instead of the name. */
class VEXEL_API SoFontStyle : public SoFont {
    SO_NODE(SoFontStyle, SoFont)
public:
    enum Family { SERIF, SANS, TYPEWRITER };
    static constexpr SoEnumEntry Family_names[] = {{"SERIF", SERIF}, {"SANS", SANS}, {"TYPEWRITER", TYPEWRITER}};
    enum Style { NONE = 0, BOLD = 1, ITALIC = 2 };
    static constexpr SoEnumEntry Style_names[] = {{"NONE", NONE}, {"BOLD", BOLD}, {"ITALIC", ITALIC}};

    SoSFEnum family{this, "family", SERIF, Family_names};
    SoSFBitMask style{this, "style", NONE, Style_names};

    void doAction(SoAction& action) override;
};
