#pragma once

#include <cstdint>

/** Boolean of the toolkit's interfaces. */
using SbBool = bool;

/** Number that identifies a node for the life of the process; 0 is never given to a node. */
using SbUniqueId = std::uint64_t;
