#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFVec2f.h>
#include <vexel/nodes/SoNode.h>

/** How depth decides what is seen. */
class VEXEL_API SoDepthBuffer : public SoNode {
    SO_NODE(SoDepthBuffer, SoNode)
public:
    enum Function { LESS, LEQUAL, NEVER, ALWAYS, EQUAL, GEQUAL, GREATER, NOTEQUAL };
    static constexpr SoEnumEntry Function_names[] = {{"LESS", LESS},       {"LEQUAL", LEQUAL},    {"NEVER", NEVER},
                                                     {"ALWAYS", ALWAYS},   {"EQUAL", EQUAL},      {"GEQUAL", GEQUAL},
                                                     {"GREATER", GREATER}, {"NOTEQUAL", NOTEQUAL}};

    SoSFBool test{this, "test", true};
    SoSFBool write{this, "write", true};
    /** What passes the test, compared with what was drawn before. */
    SoSFEnum function{this, "function", LESS, Function_names};
    /** The part of the depth from 0 to 1 that is used. */
    SoSFVec2f range{this, "range", SbVec2f(0, 1)};

    void doAction(SoAction& action) override;
};
