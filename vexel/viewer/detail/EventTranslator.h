#pragma once

#include <memory>

class QEvent;
class QWidget;
class SoEvent;

/** Turns mouse, wheel and key events of a widget into those that scenes are offered; null for others. */
std::unique_ptr<SoEvent> translateEvent(const QEvent& event, const QWidget& widget);
