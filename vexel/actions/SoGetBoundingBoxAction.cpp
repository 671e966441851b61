#include <vexel/actions/SoGetBoundingBoxAction.h>

#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>

SoGetBoundingBoxAction::SoGetBoundingBoxAction(const SbViewportRegion& region)
{
    state().setViewportRegion(region);
}

SbVec3f SoGetBoundingBoxAction::getCenter() const
{
    return m_box.isEmpty() ? SbVec3f(0, 0, 0) : m_box.getCenter();
}

void SoGetBoundingBoxAction::beginTraversal()
{
    m_box.makeEmpty();
    m_open.clear();
}

void SoGetBoundingBoxAction::visitShape(SoShape& shape)
{
    SbBox3f box = shape.computeBoundingBox(state());
    if (!box.isEmpty()) {
        box.transform(state()->model);
        m_box.extendBy(box);
    }
    checkDependencies(shape);
}

bool SoGetBoundingBoxAction::enterSeparator(SoSeparator& separator)
{
    // A path leads through a part of the separator only, so its box is not the one that is kept.
    const bool isCacheable = separator.boundingBoxCaching.getValue() != SoSeparator::OFF && !getPathAppliedTo();
    if (isCacheable) {
        if (const SbBox3f* kept = separator.getCachedBoundingBox(state()->model)) {
            m_box.extendBy(*kept);
            return false;
        }
    }
    m_open.push_back({m_box, state()->model, state()->coordinates3, state()->coordinates4, isCacheable});
    m_box.makeEmpty();
    return true;
}

void SoGetBoundingBoxAction::leaveSeparator(SoSeparator& separator)
{
    const OpenSeparator& open = m_open.back();
    if (open.isCacheable && !hasTerminated())
        separator.setCachedBoundingBox(open.model, m_box);
    SbBox3f all = open.before;
    all.extendBy(m_box);
    m_box = all;
    m_open.pop_back();
}

void SoGetBoundingBoxAction::leaveTransformsAbove()
{
    for (OpenSeparator& open : m_open)
        open.isCacheable = false;
}

void SoGetBoundingBoxAction::forgetBoundingBox()
{
    m_box.makeEmpty();
    for (OpenSeparator& open : m_open) {
        open.before.makeEmpty();
        open.isCacheable = false;
    }
}

// What comes from outside a separator may change without the separator being told, so its box must not be kept.
void SoGetBoundingBoxAction::checkDependencies(const SoShape& shape)
{
    const unsigned dependencies = shape.getDependencies();
    const SoState& present = state();
    for (OpenSeparator& open : m_open) {
        const bool usesOuterCoordinates =
            (dependencies & SoShape::ON_COORDINATES) != 0 &&
            ((open.coordinates3.source && present->coordinates3.source == open.coordinates3.source) ||
             (open.coordinates4.source && present->coordinates4.source == open.coordinates4.source));
        if (usesOuterCoordinates || (dependencies & (SoShape::ON_FONT | SoShape::ON_VIEW | SoShape::BOX_ON_VIEW)) != 0)
            open.isCacheable = false;
    }
}
