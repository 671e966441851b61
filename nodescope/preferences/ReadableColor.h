#pragma once

#include <nodescope/NodescopeApi.h>

class QColor;

/** Whether text can be read on its background. */
namespace ReadableColor {

/** True when the two differ enough in lightness for small text. */
NODESCOPE_API bool isReadable(const QColor& text, const QColor& background);
/** The colour itself where it can be read, else the same hue lighter or darker. */
NODESCOPE_API QColor on(const QColor& background, const QColor& wanted);

} // namespace ReadableColor
