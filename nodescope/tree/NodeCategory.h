#pragma once

#include <cstdint>

namespace Nsc {

/** What kind of thing a node is, as far as the user is shown it. Single bits, so that a mask holds a set of categories.
 */
enum NodeCategory : std::uint32_t {
    Unknown = 0x0000,
    Appearance = 0x0001,
    Callback = 0x0002,
    Camera = 0x0004,
    Group = 0x0008,
    Light = 0x0010,
    Manipulator = 0x0020,
    Nodekit = 0x0040,
    Property = 0x0080,
    Selection = 0x0100,
    Separator = 0x0200,
    Shape = 0x0400,
    Switch = 0x0800,
    Topology = 0x1000,
    Transform = 0x2000,
    ReservedManipulator = 0x4000, ///< never answered for a type
    ReservedAppearance = 0x8000   ///< never answered for a type
};

/** Mask of all categories that a type can have. */
constexpr int All_categories = 0x3FFF;

} // namespace Nsc
