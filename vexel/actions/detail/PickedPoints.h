#pragma once

#include <memory>

class SoPickedPoint;

namespace vexel {

struct PickHit;
class SceneTree;

/** What a hit means in terms of the graph. */
std::unique_ptr<SoPickedPoint> pickedPoint(SceneTree& tree, const PickHit& hit);

} // namespace vexel
