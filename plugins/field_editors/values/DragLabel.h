#pragma once

#include <QLabel>

/** The name of a number, which is dragged to the left and right to change it. */
class DragLabel : public QLabel {
    Q_OBJECT
public:
    explicit DragLabel(const QString& text, QWidget* parent = nullptr);

    void setReadOnly(bool isReadOnly);

signals:
    void dragBegun();
    /** Pixels to the right of where the drag began. */
    void dragged(int pixels);
    void dragEnded();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_start = 0;
    bool m_isDragged = false;
    bool m_isReadOnly = false;
};
