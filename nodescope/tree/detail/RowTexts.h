#pragma once

#include <QColor>
#include <QString>

class SbName;
class SoType;

/** Texts and colours of rows, in the forms that the tree widget takes. */
namespace RowTexts {

/** The name of a type; made once for each type. */
const QString& typeName(SoType type);
QString name(const SbName& name);
QColor color(int column, bool isIgnored);

} // namespace RowTexts
