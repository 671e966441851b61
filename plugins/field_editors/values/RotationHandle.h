#pragma once

#include <QWidget>
#include <vexel/base/SbRotation.h>

/** A ball with the axes as the rotation turns them; dragging it turns it further. */
class RotationHandle : public QWidget {
    Q_OBJECT
public:
    explicit RotationHandle(QWidget* parent = nullptr);

    void setRotation(const SbRotation& rotation);
    void setReadOnly(bool isReadOnly);
    QSize sizeHint() const override { return {110, 110}; }

signals:
    void rotated(const SbRotation& rotation);
    void dragBegun();
    void dragEnded();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    double radius() const;
    SbVec3f onBall(const QPoint& place) const;

    SbRotation m_rotation;
    SbVec3f m_last;
    bool m_isDragged = false;
    bool m_isReadOnly = false;
};
