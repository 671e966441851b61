#pragma once

#include <vector>

#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbVec2f.h>
#include <vexel/nodes/SoShape.h>

/** The line that a user is drawing about things on the screen. Nothing that files or lists of types know of. */
class LassoLine : public SoShape {
    SO_NODE_ABSTRACT(LassoLine, SoShape)
public:
    LassoLine() = default;

    /** Places in pixels from the lower left corner of the viewport; the last one is joined to the first. */
    void setOutline(std::vector<SbVec2f> outline);
    const std::vector<SbVec2f>& outline() const { return m_outline; }

    void buildGeometry(const SoState& state, SoShapeGeometry& geometry) const override;
    SbBox3f computeBoundingBox(const SoState&) const override { return SbBox3f(); }
    unsigned getDependencies() const override { return ON_VIEW; }

private:
    std::vector<SbVec2f> m_outline;
};
