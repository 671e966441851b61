#pragma once

#include <vector>

#include <vexel/base/SbVec2f.h>
#include <vexel/base/VexelApi.h>

class SbViewportRegion;
class SoNode;
class SoPathList;

namespace vexel {

/** What lies inside of a line on the screen. */
struct SceneLasso {
    /** Corners in pixels from the lower left corner of the viewport. */
    std::vector<SbVec2f> outline;
    bool wantsWhole = true;   ///< nothing of a shape may be outside; else some of it must be inside
    bool byBox = true;        ///< the boxes around shapes count instead of the shapes
    bool onlyVisible = false; ///< shapes of which nothing is seen inside are left out

    /** Appends the paths from the root to the shapes below a node. Shapes that cannot be picked are left out. */
    VEXEL_API void find(SoNode& root, const SbViewportRegion& region, const SoNode& below, SoPathList& found) const;
};

} // namespace vexel
