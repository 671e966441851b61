#pragma once

#include <QIcon>

class QString;

/** Small images that are part of the program text: a few pixels drawn with a table of colours. */
namespace BuiltInImages {

/** The image of that name as an icon, made on first use; null when there is none. */
QIcon icon(const QString& name);

} // namespace BuiltInImages
