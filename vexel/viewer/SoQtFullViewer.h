#pragma once

#include <vexel/viewer/SoGuiViewer.h>
#include <vexel/viewer/SoQtRenderArea.h>

#include <memory>

class CameraState;
class ViewerDecoration;
class ViewerScene;

/** A viewer with a tool bar and thumb wheels around the picture, and a menu under the right mouse button. */
class VEXEL_API SoQtFullViewer : public SoQtRenderArea, public SoGuiViewer {
    Q_OBJECT
public:
    enum BuildFlag { BUILD_NONE = 0, BUILD_DECORATION = 1, BUILD_POPUP = 2, BUILD_ALL = 3 };
    /** Where a scene has no camera, a browser looks at it with one of its own, and an editor puts one into it. */
    enum Type { BROWSER, EDITOR };
    enum DrawStyle { AS_IS, LINES, POINTS };

    SoQtFullViewer(QWidget* parent, const char* name, BuildFlag flag, Type type);
    ~SoQtFullViewer() override;

    QWidget* getWidget() const override;
    void setSceneGraph(SoNode* root) override;
    /** The scene that was set, without what the viewer puts around it. */
    SoNode* getSceneGraph() const override;

    void setViewing(bool on) override;
    bool isViewing() const override { return m_isViewing; }
    SoCamera* getCamera() const override;
    void viewAll() override;
    void saveHomePosition() override;
    void resetToHomePosition() override;
    void setHeadlight(bool on) override;
    bool isHeadlight() const override;

    void setDrawStyle(DrawStyle style);
    DrawStyle getDrawStyle() const { return m_drawStyle; }
    /** Exchanges perspective for parallel projection and back, unless the camera is part of the scene. */
    void toggleCameraType();
    /** The next click goes to what it hits: the camera moves there and turns to it. */
    void setSeekMode(bool on);
    bool isSeekMode() const { return m_isSeeking; }
    void setDecoration(bool on);
    bool isDecoration() const;

signals:
    /** Viewing mode, seek mode, headlight, projection or draw style is another one now. */
    void modeChanged();

protected:
    bool handleWidgetEvent(QEvent& event) override;
    /** Goes to what is under a place of the GL widget; answers whether something is there. */
    bool seekTo(const QPoint& place);
    /** Moves the camera to a state in a short while. */
    void moveCameraTo(const CameraState& state);
    void stopMovingCamera();

    /** What the thumb wheels do, angles in radians. */
    virtual void leftWheelTurned(float angle) = 0;
    virtual void bottomWheelTurned(float angle) = 0;
    virtual void rightWheelTurned(float angle) = 0;

private:
    void showMenu(const QPoint& globalPlace);
    void updateCursor();

    struct CameraFlight;

    std::unique_ptr<ViewerScene> m_scene;
    std::unique_ptr<CameraState> m_home;
    std::unique_ptr<CameraFlight> m_flight;
    ViewerDecoration* m_decoration = nullptr; ///< its parent may delete it first
    DrawStyle m_drawStyle = AS_IS;
    bool m_isViewing = true;
    bool m_isSeeking = false;
    bool m_hasMenu;
    bool m_isEditor;
};
