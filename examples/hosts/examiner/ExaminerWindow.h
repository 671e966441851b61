#pragma once

#include <examples/hosts/scene/MovingScene.h>

#include <vexel/viewer/SoQtExaminerViewer.h>

#include <QMainWindow>
#include <QTimer>

/** The program's window: a viewer, and a menu entry that opens the inspector on it. */
class ExaminerWindow : public QMainWindow {
public:
    ExaminerWindow();
    ~ExaminerWindow() override;

    SoQtExaminerViewer& viewer() { return m_viewer; }
    MovingScene& scene() { return m_scene; }
    QAction& inspectAction() { return *m_inspect; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void inspect();
    void serveInspector();

    MovingScene m_scene;
    SoQtExaminerViewer m_viewer;
    QAction* m_inspect;
    QTimer m_changes;
    QTimer m_service;
};
