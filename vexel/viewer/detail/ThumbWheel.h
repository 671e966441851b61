#pragma once

#include <QWidget>

/** A ribbed wheel that is turned with the mouse, the wheel of the mouse, or the arrow keys. */
class ThumbWheel : public QWidget {
    Q_OBJECT
public:
    ThumbWheel(Qt::Orientation orientation, const QString& name, QWidget* parent);

    QSize sizeHint() const override;

signals:
    /** The wheel was turned by an angle in radians. */
    void turned(float angle);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int length() const;
    void turn(float angle);

    Qt::Orientation m_orientation;
    QPoint m_last;
    float m_angle = 0;
};
