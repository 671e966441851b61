#pragma once

#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoNode.h>

/** Base of the sources of light. A light shines on what is behind it in the graph. */
class VEXEL_API SoLight : public SoNode {
    SO_NODE_ABSTRACT(SoLight, SoNode)
public:
    SoSFBool on{this, "on", true};
    /** Factor on the colour. */
    SoSFFloat intensity{this, "intensity", 1};
    SoSFColor color{this, "color", SbColor(1, 1, 1)};

    void doAction(SoAction& action) override;

protected:
    SoLight() = default;
};
