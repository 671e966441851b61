#include "NameText.h"

namespace {

constexpr ushort Byte_order_mark = 0xfeff;

/** Whether a unit is half of a character whose other half is missing. */
bool isBrokenAt(const QString& text, int i)
{
    if (text[i].isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

QString codeOf(QChar unit)
{
    return QStringLiteral("U+%1").arg(unit.unicode(), 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

QString NameText::problemOf(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QString code = codeOf(text[i]);
        if (text[i].isNull())
            return tr("Character %1 of the name, %2, would end it.").arg(i + 1).arg(code);
        if (i == 0 && text[i] == QChar(Byte_order_mark))
            return tr("Character %1 of the name, %2, would be lost.").arg(i + 1).arg(code);
        if (isBrokenAt(text, i))
            return tr("Character %1 of the name, %2, is half a character only.").arg(i + 1).arg(code);
    }
    return QString();
}
