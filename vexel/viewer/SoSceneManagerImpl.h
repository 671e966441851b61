#pragma once

#include <vexel/base/VexelApi.h>

class SoGuiRenderArea;

/** What a scene manager knows of its surroundings. */
class VEXEL_API SoSceneManagerImpl {
public:
    /** Tells that an inspector shows the scene: 1 while it does, 0 afterwards. Only one may at a time. */
    void setOwnNodescope(int owns) { m_isInspected = owns != 0; }
    bool isInspected() const { return m_isInspected; }

    /** Called when the scene manager is about to go while an inspector shows its scene, which must leave it then. */
    void setEndCallback(void (*function)()) { m_endFunction = function; }
    void leaveInspector()
    {
        if (m_isInspected && m_endFunction)
            m_endFunction();
    }

    /** The render area that displays the scene; null for a scene manager of its own. */
    SoGuiRenderArea* getRenderArea() const { return m_renderArea; }
    void setRenderArea(SoGuiRenderArea* renderArea) { m_renderArea = renderArea; }

private:
    SoGuiRenderArea* m_renderArea = nullptr;
    void (*m_endFunction)() = nullptr;
    bool m_isInspected = false;
};
