#pragma once

#include <QStringList>

/** Input as a user gives it: the display itself presses keys and moves the mouse, and any window may get them. */
namespace DesktopInput {

/** Does one thing after the other, each in the words of xdotool; true when all are done. */
bool perform(const QStringList& words);
/** As perform(), without waiting for the end: for input that a running event loop takes. */
void begin(const QStringList& words);
/** Gives the keyboard to the visible window of a process whose title begins like this, once there is one. */
bool focusWindow(qint64 process, const QString& title);

} // namespace DesktopInput
