#pragma once

#include <vexel/base/VexelApi.h>

class SbViewportRegion;
class SoNode;
class SoSeparator;

/**
 * A graph as a picture of it needs it: where it has no camera, behind one from which all is seen, and where it has no
 * light, with a light. The graph itself stays as it is.
 */
class VEXEL_API SoViewableScene {
public:
    /** @param region  what the camera makes its picture for */
    SoViewableScene(SoNode* graph, const SbViewportRegion& region);
    SoViewableScene(const SoViewableScene&) = delete;
    SoViewableScene& operator=(const SoViewableScene&) = delete;
    ~SoViewableScene();

    SoSeparator* root() const { return m_root; }

private:
    SoSeparator* m_root;
};
