#include <vexel/draggers/SoPointLightManip.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/draggers/detail/ManipChild.h>

SoDragger* SoPointLightManip::getDragger() const
{
    return manipDragger(m_children);
}

void SoPointLightManip::setDragger(SoDragger* dragger)
{
    setManipDragger(m_children, dragger);
}

bool SoPointLightManip::replaceNode(SoPath* path)
{
    return replaceTail(path, SoPointLight::getClassTypeId(), this);
}

bool SoPointLightManip::replaceManip(SoPath* path, SoPointLight* node) const
{
    if (node)
        return replaceTail(path, getClassTypeId(), node);
    auto* made = new SoPointLight;
    made->ref();
    const bool good = replaceTail(path, getClassTypeId(), made);
    made->unref();
    return good;
}

void SoPointLightManip::doAction(SoAction& action)
{
    // The dragger moves along with what it changes, but changes nothing for what is behind it.
    action.state().push();
    action.traverseChildren(m_children);
    action.state().pop();
    SoPointLight::doAction(action);
}
