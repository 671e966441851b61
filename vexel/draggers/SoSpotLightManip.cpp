#include <vexel/draggers/SoSpotLightManip.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/draggers/detail/ManipChild.h>

SoDragger* SoSpotLightManip::getDragger() const
{
    return manipDragger(m_children);
}

void SoSpotLightManip::setDragger(SoDragger* dragger)
{
    setManipDragger(m_children, dragger);
}

bool SoSpotLightManip::replaceNode(SoPath* path)
{
    return replaceTail(path, SoSpotLight::getClassTypeId(), this);
}

bool SoSpotLightManip::replaceManip(SoPath* path, SoSpotLight* node) const
{
    if (node)
        return replaceTail(path, getClassTypeId(), node);
    auto* made = new SoSpotLight;
    made->ref();
    const bool good = replaceTail(path, getClassTypeId(), made);
    made->unref();
    return good;
}

void SoSpotLightManip::doAction(SoAction& action)
{
    // The dragger moves along with what it changes, but changes nothing for what is behind it.
    action.state().push();
    action.traverseChildren(m_children);
    action.state().pop();
    SoSpotLight::doAction(action);
}
