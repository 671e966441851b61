#pragma once

#include <nodescope/NodescopeApi.h>

class QPrinter;
class QWidget;
class ShownPicture;

/** Puts what the 3D view shows on paper. */
namespace PicturePrinter {

/** Shows the page as it would be printed; from there the user chooses printer and paper and prints. */
NODESCOPE_API void preview(QWidget& window, const ShownPicture& picture);
/** Prints at once: as large as the page allows, in its middle, at the printer's resolution. */
NODESCOPE_API void print(QPrinter& printer, const ShownPicture& picture);

} // namespace PicturePrinter
