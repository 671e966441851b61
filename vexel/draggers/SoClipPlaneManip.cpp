#include <vexel/draggers/SoClipPlaneManip.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/draggers/detail/ManipChild.h>

SoDragger* SoClipPlaneManip::getDragger() const
{
    return manipDragger(m_children);
}

void SoClipPlaneManip::setDragger(SoDragger* dragger)
{
    setManipDragger(m_children, dragger);
}

bool SoClipPlaneManip::replaceNode(SoPath* path)
{
    return replaceTail(path, SoClipPlane::getClassTypeId(), this);
}

bool SoClipPlaneManip::replaceManip(SoPath* path, SoClipPlane* node) const
{
    if (node)
        return replaceTail(path, getClassTypeId(), node);
    auto* made = new SoClipPlane;
    made->ref();
    const bool good = replaceTail(path, getClassTypeId(), made);
    made->unref();
    return good;
}

void SoClipPlaneManip::doAction(SoAction& action)
{
    // The dragger moves along with what it changes, but changes nothing for what is behind it.
    action.state().push();
    action.traverseChildren(m_children);
    action.state().pop();
    SoClipPlane::doAction(action);
}
