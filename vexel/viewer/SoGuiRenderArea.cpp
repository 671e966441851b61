#include <vexel/viewer/SoGuiRenderArea.h>

#include <vexel/viewer/SoSceneManager.h>

void SoGuiRenderArea::setBackgroundColorRGBA(const SbColorRGBA& color)
{
    getSceneManager()->setBackgroundColorRGBA(color);
}

const SbViewportRegion& SoGuiRenderArea::getViewportRegion() const
{
    return getSceneManager()->getViewportRegion();
}

void SoGuiRenderArea::scheduleRedraw()
{
    getSceneManager()->scheduleRedraw();
}
