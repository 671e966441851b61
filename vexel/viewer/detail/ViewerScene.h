#pragma once

#include <vexel/nodes/SoCamera.h>
#include <vexel/sensors/SoWeakPtr.h>

class SbViewportRegion;
class SoDirectionalLight;
class SoNode;
class SoRotation;
class SoSeparator;

/** What a viewer puts around the scene it shows: a headlight, and a camera when the scene has none. */
class ViewerScene {
public:
    ViewerScene();
    ViewerScene(const ViewerScene&) = delete;
    ViewerScene& operator=(const ViewerScene&) = delete;
    ~ViewerScene();

    /** The graph to be drawn. */
    SoSeparator* root() const { return m_root; }
    void setScene(SoNode* scene);
    /** Makes a camera the first child of a scene that is a group. */
    void addCameraToScene();
    SoNode* scene() const { return m_scene; }
    /** The first camera of the scene, or the viewer's own. */
    SoCamera* camera() const { return usesOwnCamera() ? m_ownCamera : m_sceneCamera.get(); }
    bool usesOwnCamera() const { return !m_sceneCamera.get(); }
    /** Exchanges the viewer's own camera for one of the other kind; a camera of the scene stays. */
    void toggleProjection();

    void setHeadlight(bool on);
    bool hasHeadlight() const;

    /**
     * Lays the view's near and far distance around the scene, without a change of the camera's fields, which may belong
     * to the host; lets the headlight follow the camera.
     */
    void prepareFrame(const SbViewportRegion& region);

private:
    void useSceneCamera(SoCamera* camera);
    static void cameraGone(void* scene, SoSensor* sensor);

    SoSeparator* m_root;
    SoRotation* m_lightRotation;
    SoDirectionalLight* m_headlight;
    SoCamera* m_ownCamera;
    // The scene's camera belongs to the host, who may destroy it at any time.
    SoWeakPtr<SoCamera> m_sceneCamera;
    SoNode* m_scene = nullptr;
};
