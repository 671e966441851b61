#include "ClassReference.h"

#include <nodescope/mainframe/OnlineReference.h>

#include <QString>

QString ClassReference::pageName(const QString& typeName)
{
    QString name;
    for (const QChar c : typeName) {
        if (c.isUpper())
            name += QLatin1Char('_');
        name += c.toLower();
    }
    const bool hasFamily = name.contains(QLatin1String("_po_")) || name.contains(QLatin1String("_so_")) ||
                           name.contains(QLatin1String("_mo"));
    return hasFamily ? name : QStringLiteral("_so") + name;
}

QUrl ClassReference::page(const QString& typeName)
{
    return OnlineReference::page(QStringLiteral("class") + pageName(typeName));
}
