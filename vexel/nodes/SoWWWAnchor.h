#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoLocateHighlight.h>

/** A separator that stands for a place elsewhere: activating it calls the program with its address. */
class VEXEL_API SoWWWAnchor : public SoLocateHighlight {
    SO_NODE(SoWWWAnchor, SoLocateHighlight)
public:
    enum Mapping { NONE, POINT };
    static constexpr SoEnumEntry Mapping_names[] = {{"NONE", NONE}, {"POINT", POINT}};
    using Function = void(const SbString& url, void* data, SoWWWAnchor* node);

    /** The address. */
    SoSFString name{this, "name", SbString("<Undefined URL>")};
    /** What to tell the user instead of the address. */
    SoSFString description{this, "description"};
    /** POINT adds the picked point to the address. */
    SoSFEnum map{this, "map", NONE, Mapping_names};

    /** What activate() calls; one function for all anchors. */
    static void setFetchURLCallBack(Function* function, void* data);
    /** @param point  the picked point in the space of the anchor; may be null */
    void activate(const SbVec3f* point = nullptr);
};
