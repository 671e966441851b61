#pragma once

#include <nodescope/NodescopeApi.h>

#include <QHeaderView>

/** The header of a field list: tells of right clicks, and of widths that the user gives to columns. */
class NODESCOPE_API SoHeaderView : public QHeaderView {
    Q_OBJECT
public:
    explicit SoHeaderView(QWidget* parent = nullptr);

signals:
    /** The right mouse button was released at a place of the screen. */
    void rightClicked(const QPoint& place);
    /** The user drags the edge of a column; the column that only fills what is left over is not told. */
    void columnDragged(int column, int width);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void sectionChanged(int column, int oldWidth, int width);

    bool m_isPressed = false;
};
