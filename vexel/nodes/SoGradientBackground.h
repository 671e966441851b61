#pragma once

#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/nodes/SoBackground.h>

/** A background that goes from one colour to another. */
class VEXEL_API SoGradientBackground : public SoBackground {
    SO_NODE(SoGradientBackground, SoBackground)
public:
    /** At the top. */
    SoSFColor color0{this, "color0", SbColor(0.5f, 0.5f, 0.8f)};
    /** At the bottom. */
    SoSFColor color1{this, "color1", SbColor(0.1f, 0.1f, 0.15f)};
    /** Turns the gradient upside down. */
    SoSFBool swapColors{this, "swapColors", false};
};
