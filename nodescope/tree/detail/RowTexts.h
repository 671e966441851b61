#pragma once

#include <QString>

class QIcon;
class QPixmap;
class SbName;
class SoType;

/** Texts and icons of rows, in the forms that the tree widget takes. */
namespace RowTexts {

/** The name of a type; made once for each type. */
const QString& typeName(SoType type);
QString name(const SbName& name);
/** The picture as an icon that keeps its colours in a selected row; made once for each picture. */
const QIcon& icon(const QPixmap& pixmap);

} // namespace RowTexts
