#pragma once

#include <QUrl>

class QString;

/** The pages of the toolkit's class reference. */
namespace ClassReference {

/** Name of the page of a type, without ending: "_so_separator" for "SoSeparator" and for "Separator". */
QString pageName(const QString& typeName);
/** Address of that page. */
QUrl page(const QString& typeName);

} // namespace ClassReference
