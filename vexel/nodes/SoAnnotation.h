#pragma once

#include <vexel/nodes/SoSeparator.h>

/** A separator that is drawn last, and picked first, in front of everything else. */
class VEXEL_API SoAnnotation : public SoSeparator {
    SO_NODE(SoAnnotation, SoSeparator)
public:
    void doAction(SoAction& action) override;
};
