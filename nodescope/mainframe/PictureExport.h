#pragma once

#include <nodescope/NodescopeApi.h>

#include <QString>

class QWidget;
class ShownPicture;

/** Writes what the 3D view shows into a picture file that the user chooses. */
namespace PictureExport {

/**
 * Asks for name and format and writes the file. What goes wrong is posted as an SoDebugError.
 * @param sceneFile  the scene's own file, whose name is proposed; empty: there is none
 */
NODESCOPE_API void printFile(QWidget& window, const ShownPicture& picture, const QString& sceneFile);

} // namespace PictureExport
