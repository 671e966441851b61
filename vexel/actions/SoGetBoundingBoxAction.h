#pragma once

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbBox3f.h>

/** Computes the box around a graph, in the space of its root. */
class VEXEL_API SoGetBoundingBoxAction : public SoAction {
    SO_ACTION(SoGetBoundingBoxAction, SoAction)
public:
    explicit SoGetBoundingBoxAction(const SbViewportRegion& region);

    /** The box; empty when nothing has an extent. */
    const SbBox3f& getBoundingBox() const { return m_box; }
    SbVec3f getCenter() const;

    void visitShape(SoShape& shape) override;
    bool enterSeparator(SoSeparator& separator) override;
    void leaveSeparator(SoSeparator& separator) override;

    /** Called by nodes that place what is below them without regard to the transforms above. */
    void leaveTransformsAbove();
    /** Called by nodes that take what came before them out of the box. */
    void forgetBoundingBox();

protected:
    void beginTraversal() override;

private:
    struct OpenSeparator {
        SbBox3f before;
        SbMatrix model;
        SoStateList<SbVec3f> coordinates3;
        SoStateList<SbVec4f> coordinates4;
        bool isCacheable;
    };

    void checkDependencies(const SoShape& shape);

    SbBox3f m_box;
    std::vector<OpenSeparator> m_open;
};
