#include "RowTexts.h"

#include <vexel/base/SoType.h>

#include <QHash>
#include <QIcon>
#include <QPixmap>

#include <vector>

const QString& RowTexts::typeName(SoType type)
{
    static std::vector<QString> known;
    const std::size_t key = type.getKey();
    if (key >= known.size())
        known.resize(key + 1);
    if (known[key].isNull())
        known[key] = QString::fromLatin1(type.getName().getString());
    return known[key];
}

QString RowTexts::name(const SbName& name)
{
    return name.toQString();
}

const QIcon& RowTexts::icon(const QPixmap& pixmap)
{
    static QHash<qint64, QIcon> known;
    QIcon& icon = known[pixmap.cacheKey()];
    if (icon.isNull()) {
        icon.addPixmap(pixmap);
        icon.addPixmap(pixmap, QIcon::Selected);
    }
    return icon;
}
