#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoBackground.h>

/** A background that shows a picture. */
class VEXEL_API SoImageBackground : public SoBackground {
    SO_NODE(SoImageBackground, SoBackground)
public:
    enum Style { NONE, CENTERED, LOWER_LEFT, UPPER_LEFT, UPPER_RIGHT, LOWER_RIGHT, STRETCHED, TILED };
    static constexpr SoEnumEntry Style_names[] = {{"NONE", NONE},
                                                  {"CENTERED", CENTERED},
                                                  {"LOWER_LEFT", LOWER_LEFT},
                                                  {"UPPER_LEFT", UPPER_LEFT},
                                                  {"UPPER_RIGHT", UPPER_RIGHT},
                                                  {"LOWER_RIGHT", LOWER_RIGHT},
                                                  {"STRETCHED", STRETCHED},
                                                  {"TILED", TILED}};

    /** File of the picture; setting it reads the picture into image. */
    SoSFString filename{this, "filename"};
    SoSFImage image{this, "image"};
    SoSFEnum style{this, "style", TILED, Style_names};

    void readFinished(SoInput& in) override;
    void notify(SoNotList& list) override;
};
