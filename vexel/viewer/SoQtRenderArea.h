#pragma once

#include <vexel/viewer/SoGuiRenderArea.h>

#include <QObject>
#include <memory>

class InspectorHook;
class RenderWidget;

/**
 * A widget that shows a scene and passes the user's events to it. Shift+F12 opens the inspector on the scene, if it is
 * installed.
 */
class VEXEL_API SoQtRenderArea : public QObject, public virtual SoGuiRenderArea {
    Q_OBJECT
public:
    explicit SoQtRenderArea(QWidget* parent = nullptr, const char* name = nullptr);
    ~SoQtRenderArea() override;

    QWidget* getWidget() const override;
    QWidget* getGLWidget() const override;
    SoSceneManager* getSceneManager() const override { return m_sceneManager.get(); }
    void setSceneGraph(SoNode* root) override;
    SoNode* getSceneGraph() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /** What the area does with an event of the GL widget before the scene is offered it; true takes it away. */
    virtual bool handleWidgetEvent(QEvent& event);
    /** Offers an event of the GL widget to the scene. */
    bool offerToScene(const QEvent& event);

private:
    std::unique_ptr<SoSceneManager> m_sceneManager;
    std::unique_ptr<InspectorHook> m_inspectorHook;
    RenderWidget* m_glWidget; ///< its parent may delete it first
};
