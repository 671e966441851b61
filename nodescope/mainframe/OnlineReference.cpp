#include "OnlineReference.h"

namespace {
const char Address[] = "https://nodescope.example/reference/";
}

QUrl OnlineReference::page(const QString& name)
{
    return QUrl(QLatin1String(Address) + name + QStringLiteral(".html"));
}

QUrl OnlineReference::toolPage()
{
    return page(QStringLiteral("nodescope"));
}
