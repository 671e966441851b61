#pragma once

#include <string_view>

#include <vexel/base/SoType.h>

class KeptObjects;
class SoFieldContainer;
class SoUnknownNode;

/** What a reader makes when a scene names a type. */
struct NewContainer {
    /**
     * Makes an object of the type, or an unknown node when no such type can be made, and holds it in @p kept.
     * @param type       what the name of the type stands for
     * @param sceneName  as it stands in the scene, with what may follow a plus sign; may be empty
     */
    NewContainer(SoType type, std::string_view typeName, std::string_view sceneName, KeptObjects& kept);

    /** True for the types that a scene can hold under their own names. */
    static bool isKnown(SoType type);

    SoFieldContainer* container;
    SoUnknownNode* unknown = nullptr; ///< the container, when its type is not known
};
