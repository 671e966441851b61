#pragma once

#include <vexel/nodes/SoNode.h>

class VEXEL_API SoBaseKit : public SoNode {
    SO_NODE(SoBaseKit, SoNode)
public:
    SoBaseKit() = default;
};
