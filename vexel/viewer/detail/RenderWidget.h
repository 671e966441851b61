#pragma once

#include <QOpenGLWidget>

class SoSceneManager;

/** The OpenGL widget of a render area: draws the scene manager's scene whenever Qt asks. */
class RenderWidget : public QOpenGLWidget {
    Q_OBJECT
public:
    RenderWidget(SoSceneManager* sceneManager, QWidget* parent);
    ~RenderWidget() override;

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;

private:
    void releaseGraphics();
    void updateRegion();

    SoSceneManager* m_sceneManager;
};
