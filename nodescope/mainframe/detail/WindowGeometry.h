#pragma once

class QMainWindow;

/** The place and size of the main window, and the layout within it, in the preference store. */
namespace WindowGeometry {

/** Moves the window to its stored place, maximised unless another program stored a layout text of its own. */
void restore(QMainWindow& window);
/** Places docks and tool bars as stored; those that are not stored stay where they are. */
void restoreLayout(QMainWindow& window);
void save(const QMainWindow& window);

} // namespace WindowGeometry
