#pragma once

#include <QWidget>

class QToolButton;
class QVBoxLayout;
class SoQtFullViewer;

/** The frame of a viewer: tool buttons on the right, thumb wheels on the left, below and on the right. */
class ViewerDecoration : public QWidget {
    Q_OBJECT
public:
    ViewerDecoration(SoQtFullViewer* viewer, QWidget* glWidget, QWidget* parent);

    void setShown(bool on);
    bool isShown() const { return m_isShown; }

signals:
    void leftTurned(float angle);
    void bottomTurned(float angle);
    void rightTurned(float angle);

private:
    QToolButton* addButton(QVBoxLayout* layout, const char* icon, const QString& name, bool isCheckable);
    QWidget* makeTools();
    void updateButtons();

    SoQtFullViewer* m_viewer;
    QList<QWidget*> m_parts;
    QToolButton* m_pick = nullptr;
    QToolButton* m_view = nullptr;
    QToolButton* m_seek = nullptr;
    QToolButton* m_headlight = nullptr;
    QToolButton* m_projection = nullptr;
    bool m_isShown = true;
};
