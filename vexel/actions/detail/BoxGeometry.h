#pragma once

#include <memory>

namespace vexel {

struct Bounds;
class RenderGeometry;

/** The six sides of a box as triangles; null for an empty box. */
std::shared_ptr<const RenderGeometry> boxGeometry(const Bounds& box);

} // namespace vexel
