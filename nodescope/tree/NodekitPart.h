#pragma once

#include <nodescope/NodescopeApi.h>

#include <vexel/base/SbName.h>

class SoBaseKit;
class SoNode;

/**
 * What a nodekit's catalog says of a node that is shown below the kit. It is looked up anew each time, because a change
 * of the kit renames its parts: the items of a list are named by their places.
 */
class NODESCOPE_API NodekitPart {
public:
    enum Kind { NoPart = 0, OrdinaryPart = 1, TopSeparator = 2 };

    NodekitPart(SoBaseKit& kit, const SoNode& node);

    bool isPart() const { return !m_name.isEmpty(); }
    /** As the kit calls the part; empty for none. */
    SbName name() const { return m_name; }
    Kind kind() const;
    /** Number in the kit's catalog; -1 when the node is no part. */
    int number() const { return m_number; }
    SbName parentName() const;
    bool isPublic() const;
    /** True when the part hangs below another part, under which it is shown. */
    bool isNested() const;
    /** In how many places of its inner graph the kit has the part: references besides that of the field that holds it.
     */
    int innerPlaces() const;

private:
    SoBaseKit& m_kit;
    const SoNode& m_node;
    SbName m_name;
    int m_number = -1;
};
