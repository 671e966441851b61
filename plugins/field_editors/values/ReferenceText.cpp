#include "ReferenceText.h"

#include <vexel/base/SoBase.h>

QString ReferenceText::of(const SoBase* object)
{
    if (!object)
        return QStringLiteral("NULL");
    const QString type = object->getTypeId().getName().toQString();
    const QString name = object->getName().toQString();
    return name.isEmpty() ? type : type + QStringLiteral(" \"") + name + QLatin1Char('"');
}
