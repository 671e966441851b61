#pragma once

#include <QPersistentModelIndex>
#include <QPoint>

class QMimeData;
class QPainter;
class SoNodescopeTreeView;
class SoTreeViewItem;

/**
 * The dragging of a row of the tree onto another one, from the press on. What is dragged is remembered here; the drag
 * itself carries a marker only, so nothing is accepted from elsewhere.
 */
class RowDrag {
public:
    explicit RowDrag(SoNodescopeTreeView& view) : m_view(view) {}

    /** The button of the mouse went down at a place of the viewport. */
    void press(const QPoint& place);
    /** The mouse moved with its button down; starts the drag once it went far enough, and returns after the drop. */
    void move(const QPoint& place);

    /** While it is held, a row is dropped behind another and not into it. */
    void setSpaceHeld(bool isHeld) { m_isSpaceHeld = isHeld; }

    /** The row that is dragged; null when this is no drag of a row, or the row has gone. */
    SoTreeViewItem* draggedRow(const QMimeData& data) const;
    /** A drag is over a place of the viewport. */
    void hover(const QPoint& place);
    void leave();
    /** Asks for the move, if a row was dropped on another, and forgets what was dragged. */
    void drop(const QPoint& place, const QMimeData& data);
    /** Marks where the row would be dropped: in a frame, or behind a line. */
    void paintIndicator(QPainter& painter) const;

private:
    void start();
    static SoTreeViewItem* rowAt(const QPersistentModelIndex& index);

    SoNodescopeTreeView& m_view;
    QPoint m_pressPlace;
    QPersistentModelIndex m_pressed; ///< the dragged row
    QPersistentModelIndex m_hovered;
    bool m_isArmed = false;
    bool m_isSpaceHeld = false;
};
