#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoNode.h>

/** How what is transparent is drawn, instead of the choice of the render action. */
class VEXEL_API SoTransparencyType : public SoNode {
    SO_NODE(SoTransparencyType, SoNode)
public:
    enum Type {
        NO_SORT,       /**< in the order of the graph */
        OPAQUE_FIRST,  /**< behind all that is opaque */
        SORTED_OBJECT, /**< and shape by shape, the farthest first */
        SORTED_PIXEL   /**< right for every pixel */
    };
    static constexpr SoEnumEntry Type_names[] = {{"NO_SORT", NO_SORT},
                                                 {"OPAQUE_FIRST", OPAQUE_FIRST},
                                                 {"SORTED_OBJECT", SORTED_OBJECT},
                                                 {"SORTED_PIXEL", SORTED_PIXEL},
                                                 {"SCREEN_DOOR", NO_SORT},
                                                 {"ADD", NO_SORT},
                                                 {"BLEND", NO_SORT},
                                                 {"DELAYED_ADD", OPAQUE_FIRST},
                                                 {"DELAYED_BLEND", OPAQUE_FIRST},
                                                 {"SORTED_OBJECT_ADD", SORTED_OBJECT},
                                                 {"SORTED_OBJECT_BLEND", SORTED_OBJECT}};

    SoSFEnum value{this, "value", OPAQUE_FIRST, Type_names};

    void doAction(SoAction& action) override;
};
