#include <vexel/draggers/SoDirectionalLightManip.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/draggers/detail/ManipChild.h>

SoDragger* SoDirectionalLightManip::getDragger() const
{
    return manipDragger(m_children);
}

void SoDirectionalLightManip::setDragger(SoDragger* dragger)
{
    setManipDragger(m_children, dragger);
}

bool SoDirectionalLightManip::replaceNode(SoPath* path)
{
    return replaceTail(path, SoDirectionalLight::getClassTypeId(), this);
}

bool SoDirectionalLightManip::replaceManip(SoPath* path, SoDirectionalLight* node) const
{
    if (node)
        return replaceTail(path, getClassTypeId(), node);
    auto* made = new SoDirectionalLight;
    made->ref();
    const bool good = replaceTail(path, getClassTypeId(), made);
    made->unref();
    return good;
}

void SoDirectionalLightManip::doAction(SoAction& action)
{
    // The dragger moves along with what it changes, but changes nothing for what is behind it.
    action.state().push();
    action.traverseChildren(m_children);
    action.state().pop();
    SoDirectionalLight::doAction(action);
}
