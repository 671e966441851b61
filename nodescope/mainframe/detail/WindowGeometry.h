#pragma once

class QWidget;

/** The place and size of the main window in the preference store. */
namespace WindowGeometry {

/** Moves the window to its stored place, maximised: sizes count only with a layout, and none is stored. */
void restore(QWidget& window);
void save(const QWidget& window);

} // namespace WindowGeometry
