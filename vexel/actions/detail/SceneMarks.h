#pragma once

#include <vexel/actions/detail/SceneTree.h>

namespace vexel {

class ChangeStamps;

/** Marks one place, and the way to it, for the next walk. */
void markScope(SceneScope& scope, SceneScope::Dirt dirt);

/**
 * Marks all places that a change of a node concerns: those of the separators next above it. False when there are none
 * known. Nodes on the way whose own look depends on the changed one get a new stamp.
 */
bool markPlaces(SceneTree& tree, SoNode& node, SceneScope::Dirt dirt, ChangeStamps& stamps);

} // namespace vexel
