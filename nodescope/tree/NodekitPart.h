#pragma once

#include <memory>

#include <vexel/base/SbName.h>

class SoBaseKit;
class SoNode;

/** What a nodekit's catalog says of a node that is shown below the kit. */
struct NodekitPart {
    enum Kind { NoPart = 0, OrdinaryPart = 1, TopSeparator = 2 };

    SoBaseKit* kit = nullptr;
    SbName partName;
    Kind kind = NoPart;
    int partNumber = -1;
    bool isPart = false;

    /** Looks the node up in the catalog of @p kit. */
    NodekitPart(SoBaseKit* kit, SoNode* node);

    SbName parentName() const;
    bool isPublic() const;
    /** True when the part hangs below another part, under which it is shown. */
    static bool isNested(SoBaseKit* kit, SoNode* node);
};
