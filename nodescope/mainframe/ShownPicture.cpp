#include "ShownPicture.h"

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/actions/SoOffscreenRenderArea.h>
#include <vexel/base/SbString.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QImage>

template <class Use>
auto ShownPicture::withArea(const SbVec2s& pixels, Use&& use) const
{
    auto* const area = new SoOffscreenRenderArea;
    area->ref();
    area->setViewportRegion(SbViewportRegion(pixels));
    if (m_manager) {
        area->setBackgroundColor(m_manager->getBackgroundColorRGBA());
        if (const SoGLRenderAction* const action = m_manager->getGLRenderAction())
            area->setTransparencyType(action->getTransparencyType());
    }
    area->setSceneGraph(&m_root);
    auto result = use(*area);
    area->unref();
    return result;
}

QImage ShownPicture::render(const SbVec2s& pixels) const
{
    return withArea(pixels, [](SoOffscreenRenderArea& area) { return area.render(); });
}

bool ShownPicture::renderToFile(const SbVec2s& pixels, const SbString& file) const
{
    return withArea(pixels, [&](SoOffscreenRenderArea& area) { return area.renderToFile(file); });
}
