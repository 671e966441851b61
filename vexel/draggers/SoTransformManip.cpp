#include <vexel/draggers/SoTransformManip.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/draggers/detail/ManipChild.h>

SoDragger* SoTransformManip::getDragger() const
{
    return manipDragger(m_children);
}

void SoTransformManip::setDragger(SoDragger* dragger)
{
    setManipDragger(m_children, dragger);
}

bool SoTransformManip::replaceNode(SoPath* path)
{
    return replaceTail(path, SoTransform::getClassTypeId(), this);
}

bool SoTransformManip::replaceManip(SoPath* path, SoTransform* node) const
{
    if (node)
        return replaceTail(path, getClassTypeId(), node);
    auto* made = new SoTransform;
    made->ref();
    const bool good = replaceTail(path, getClassTypeId(), made);
    made->unref();
    return good;
}

void SoTransformManip::doAction(SoAction& action)
{
    // The dragger moves along with what it changes, but changes nothing for what is behind it.
    action.state().push();
    action.traverseChildren(m_children);
    action.state().pop();
    SoTransform::doAction(action);
}
