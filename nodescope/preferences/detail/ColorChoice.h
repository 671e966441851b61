#pragma once

#include <QColor>

class QPixmap;
class QSize;
class QWidget;

/** Asking for a colour, and showing the one that was chosen. */
namespace ColorChoice {

/** Asks with a modal dialog of the given object name; the current colour when it is cancelled. */
QColor ask(QColor current, const char* dialogName, QWidget* parent);
/** A filled rectangle with an edge, sharp on the widget's display. */
QPixmap swatch(const QColor& color, const QSize& size, const QWidget& widget);

} // namespace ColorChoice
