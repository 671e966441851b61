#include <vexel/nodes/SoSeparator.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbMatrix.h>

struct SoSeparator::BoxCache {
    SbMatrix model;
    SbBox3f box;
};

SoSeparator::SoSeparator() = default;

SoSeparator::~SoSeparator() = default;

void SoSeparator::doAction(SoAction& action)
{
    if (!action.needsState()) {
        SoGroup::doAction(action);
        return;
    }
    action.state().push();
    if (action.enterSeparator(*this)) {
        SoGroup::doAction(action);
        action.leaveSeparator(*this);
    }
    action.state().pop();
}

void SoSeparator::notify(SoNotList& list)
{
    m_boxCache.reset();
    SoGroup::notify(list);
}

const SbBox3f* SoSeparator::getCachedBoundingBox(const SbMatrix& model) const
{
    return m_boxCache && m_boxCache->model == model ? &m_boxCache->box : nullptr;
}

void SoSeparator::setCachedBoundingBox(const SbMatrix& model, const SbBox3f& box)
{
    m_boxCache = std::make_unique<BoxCache>(BoxCache{model, box});
}
